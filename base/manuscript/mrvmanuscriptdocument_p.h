#pragma once

#include "manuscript/mrvmanuscript.h"

#include <QTextDocument>

#include <memory>

/** A document of a text in a known format, without its pictures. It keeps no undo history. */
std::unique_ptr<QTextDocument> mrvNewDocument(const QString &text, MRVManuscript::Format format);
