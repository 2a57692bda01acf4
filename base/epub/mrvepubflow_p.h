#pragma once

#include "document/mrvdocumentflow.h"

using MRVEPubFlow = MRVDocumentFlow;
using MRVEPubFragment = MRVFlowFragment;
using MRVEPubAnchor = MRVFlowAnchor;
using MRVEPubLink = MRVFlowLink;
using MRVEPubParagraph = MRVFlowParagraph;
using MRVEPubFrame = MRVFlowFrame;
