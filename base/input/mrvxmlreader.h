#pragma once

#include "core/mrverror.h"
#include "input/mrvtextdecoder.h"

#include "core/mrvinputlimits.h"

class QXmlStreamReader;

/**
 * What an XML text may ask of the parser that gets it.
 *
 * @since 1.0
 */
struct MRVXmlLimits
{
    /** What a document type may do. */
    enum DocumentType {
        NoDocumentType, /**< there may not be one */
        NoDeclarations, /**< it declares nothing, and what it names outside is blanked */
        OwnDeclarations /**< it may declare entities that expand within MRVInputLimits */
    };

    DocumentType documentType = OwnDeclarations;
    int depth = MRVInputLimits::XmlDepth; // of elements, the document element counted
    int attributes = MRVInputLimits::XmlAttributes; // of one element
    int tagLength = 0; // characters of a start tag; 0 is no limit
};

/**
 * Takes XML from outside: decodes it and checks that a parser of Qt's, which knows no limits, can
 * be trusted with it.
 *
 * A text that is not well-formed may pass, since the check goes as far as the parser will. Takes
 * time linear in the text. Other files are never read.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVXmlReader
{
    Q_DECLARE_TR_FUNCTIONS(MRVXmlReader)

public:
    MRVXmlReader() = delete;

    /**
     * Decodes an XML document as its byte-order mark or its declaration says, else as UTF-8. An
     * encoding that is not known counts as UTF-8.
     *
     * @param bytes of a whole document.
     * @param text  receives the text; untouched on failure.
     * @return false, with the place of the first fault, when bytes are not of that encoding.
     */
    static bool decode(const QByteArray &bytes, QString *text, MRVTextFault *fault);

    /**
     * Makes @p xml what QDomDocument reads as XML has it (XML 1.0, section 2.11): line ends become
     * line feeds, and references to characters beyond U+FFFF the characters. A byte-order mark
     * goes.
     *
     * @return false, with @p xml as it was and the place of the first fault, for a character that
     *         XML forbids (XML 1.0, sections 2.2 and 4.1), or a reference to one.
     */
    static bool normalize(QString *xml, MRVTextFault *fault);

    /**
     * Whether the text @p xml keeps to @p limits, and has no two attributes of one name in an
     * element, of which QDomDocument would keep one.
     *
     * @param fault receives the first fault; untouched on success.
     */
    static bool keepsLimits(const QString &xml, const MRVXmlLimits &limits, MRVTextFault *fault);

    /**
     * decode() of @p bytes into @p text and keepsLimits(), for a stream reader. @p error may be
     * null: "line 3: reason".
     */
    static bool read(const QByteArray &bytes, const MRVXmlLimits &limits, QString *text,
                     MRVErrorSink error);

    /** Whether the stream reader @p xml has met no error; else @p error, if given, receives it. */
    static bool isRead(const QXmlStreamReader &xml, MRVErrorSink error);
};
