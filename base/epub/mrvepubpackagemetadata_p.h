#pragma once

#include <QString>

class QDateTime;
class QXmlStreamWriter;
struct MRVEPubBook;

/** Writes the element "metadata" of the package document. */
void mrvWriteEPubMetadata(QXmlStreamWriter *xml, const MRVEPubBook &book, const QString &identifier,
                          const QDateTime &modified);
