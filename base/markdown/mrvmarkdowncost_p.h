#pragma once

#include <QByteArray>

/**
 * Whether cmark would take more than linear time or memory for @p markdown (UTF-8), or nest blocks
 * more deeply than MRVInputLimits allows. An estimate from above, in linear time.
 */
bool mrvIsCostlyMarkdown(const QByteArray &markdown);
