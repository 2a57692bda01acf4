#pragma once

#include "epub/mrvepuboptions.h"

#include <QByteArray>

/** The rules that every book has, after those of a base. */
QByteArray mrvEPubBaseSheet(MRVEPubOptions::StyleBase base);
