#pragma once

#include "core/mrverror.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <memory>

class MRVDomDoc;

/**
 * The bytes that a document was read from, to write it so that they change only where it has.
 *
 * MRVDomDoc::save() lays a document out anew, in UTF-8. This class keeps what a person or another
 * program has written: the encoding, the declaration, the order of attributes, quotes, blanks, line
 * ends and comments. A new element is laid out as its neighbours are.
 *
 * @code
 * const QString path = QStringLiteral("config.xml");
 * QString unreadable;
 * const QByteArray bytes = MRVCoreUtil::ReadBinaryFile(path, &unreadable);
 * MRVDomDoc config;
 * MRVDomSource source;
 * QByteArray changed;
 * if (source.read(bytes, &config) && config.set(QStringLiteral("on"), QStringLiteral("engine"))
 *     && source.write(config, &changed)) {
 *     MRVFileWriter::write(path, changed);
 * }
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVDomSource
{
    Q_DECLARE_TR_FUNCTIONS(MRVDomSource)
    Q_DISABLE_COPY(MRVDomSource)

public:
    /** Holds nothing: write() lays any document out anew. */
    MRVDomSource();
    ~MRVDomSource();

    /**
     * Replaces the content of @p doc by the XML in @p bytes, as MRVDomDoc::setContent() does, and
     * remembers the bytes.
     *
     * @return false, with an empty document that has the place and the reason, where that fails.
     */
    bool read(const QByteArray &bytes, MRVDomDoc *doc);

    /**
     * Writes @p doc with what was changed in it since read(); the bytes of read() where nothing
     * was. What is written reads as the document, which is tried.
     *
     * @param doc   the document of read(), changed in any way.
     * @param bytes receives the result; untouched on failure.
     * @param note  if given, receives one translated line where the whole document is laid out
     *              anew in @p bytes, with the reason; untouched otherwise. That is so for a
     *              document type that declares entities, which then go, for an encoding of several
     *              forms for one text, and for changes outside the document element. Nothing is
     *              noted where nothing was read.
     * @param error if given, receives one translated line on failure; untouched on success.
     * @return false where MRVDomDoc::save() would fail.
     */
    bool write(const MRVDomDoc &doc, QByteArray *bytes, QString *note = nullptr,
               MRVErrorSink error = nullptr) const;

private:
    class Private;
    const std::unique_ptr<Private> d;
};
