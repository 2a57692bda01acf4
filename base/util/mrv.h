#pragma once

// Everything in the namespace MRV.

#include "util/mrvclosestmatch.h"
#include "util/mrvcolors.h"
#include "util/mrvenums.h"
#include "util/mrvescape.h"
#include "util/mrvimageformats.h"
#include "util/mrvmimetypes.h"
#include "util/mrvnames.h"
#include "util/mrvpaths.h"
