#pragma once

#include "core/mrverror.h"
#include "dom/mrvdomlimits.h"
#include "dom/mrvdomtext.h"
#include "util/mrvbase_export.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDomDocument>
#include <QDomElement>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVector>

#include <type_traits>

class QIODevice;

/**
 * An XML document with a cursor and paths.
 *
 * The work element is to the document what the current folder is to a file system: relative paths
 * begin there, and new elements are added there. The work child is the place in it next to which
 * insert() puts a new one. A path such as "/config/engine@id=rtf/option@enabled" names an element
 * by steps: element names, "." and "..", each with any number of predicates on attributes.
 * docs/paths.md tells the rules.
 *
 * Values are read and written as the text of elements and as attributes, each type in one text form
 * (MRVDomText). What XML cannot hold (control characters, U+FFFE, U+FFFF, halves of surrogate
 * pairs) is dropped from the texts that an application sets. In a file it is damage: such a file is
 * refused.
 *
 * No text is lost by loading and saving, white space included. White space between tags is layout,
 * and replaced by that of save(), only in an element without any other text, and only when each
 * stretch of it holds a line end, as in an indented file; so the blank in "<b>one</b> <i>two</i>"
 * is text. An attribute xml:space="preserve" makes it text in any case. White space before the
 * first element in an element is passed over where the first child matters: by init(), get(),
 * getNext() and set(). Only between the tags that an entity stands for is white space dropped.
 *
 * Looking something up moves no cursor, but findNext() goes on from the last find(), so that these
 * two, though const, must not be called on one document from several threads. An element that is
 * handed out belongs to the document: it stays usable until the document's content is replaced or
 * the document destroyed.
 *
 * @code
 * MRVDomDoc config;
 * if (!config.load(QStringLiteral("config.xml"))) {
 *     qWarning() << config.errorMessage() << config.errorLine();
 * }
 * // An element by its attribute, and the text in it.
 * QString command;
 * if (config.get(&command, QStringLiteral("/config/engine@id=rtf/command"))) {
 *     config.setAttr(QStringLiteral("enabled"), true, QStringLiteral("/config/engine@id=rtf"));
 * }
 * // One item after the other.
 * for (bool more = config.cd(QStringLiteral("/config/engine")); more;
 *      more = config.cdNext(QStringLiteral("engine"))) {
 *     qDebug() << config.workElement(true);
 * }
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVDomDoc
{
    Q_DECLARE_TR_FUNCTIONS(MRVDomDoc)
    Q_DISABLE_COPY(MRVDomDoc)

public:
    /** What lookups return when nothing is found: a null element. */
    static const QDomElement &EmptyElement;

    /** An empty document. */
    MRVDomDoc();
    /** A document loaded from a file; empty where load() fails. */
    explicit MRVDomDoc(const QString &fileName);
    /** A document whose document element is a deep copy of @p e; empty for a null element. */
    explicit MRVDomDoc(const QDomElement &e);
    virtual ~MRVDomDoc();

    /** @name Content and files */
    //@{

    /** Empties the document and forgets its file name and the outcome of the last parse. */
    void clear();
    /**
     * Puts the work element on the document element and the work child on its first child, if that
     * is an element.
     */
    void init();
    /** Replaces the content by a deep copy of @p e; by nothing for a null element. Always true. */
    bool setContent(const QDomElement &e);
    /**
     * Replaces the content by the XML in @p xml, whose declared encoding does not matter.
     * Namespaces are not looked at: a prefix is part of a name.
     *
     * @return false, with an empty document and errorMessage(), errorLine() and errorColumn() set,
     * when Qt's parser does not take the text, or when it is refused: with characters that XML
     * forbids, two attributes of one name in an element, nested more deeply, or with entities that
     * expand to more, than MRVDomLimits allows. External entities are never fetched; references to
     * them are refused, too.
     */
    bool setContent(const QString &xml);
    /**
     * As above, with the bytes of a device from its current position on. A byte-order mark or the
     * XML declaration names the encoding; else it is UTF-8. The file name is kept. A device that is
     * not open is opened, and closed again; false for a null device, and, with an empty document,
     * for a file that cannot be read to its end.
     */
    bool setContent(QIODevice *device);
    /**
     * As above, with a file. On success errorMessage() is "MRVDomDoc::load() ok "; when the file
     * cannot be parsed, "MRVDomDoc::load() failed ", with the line and column of the error kept;
     * when it cannot be opened, "File not found: " and the name, and the document stays as it was.
     */
    bool load(const QString &fileName);
    /**
     * Writes the document as UTF-8, whatever its declaration said before, with an indentation of
     * three blanks a level and the attributes of each element sorted by name: the same document
     * gives the same bytes. What is in an element that holds text is written as it stands. Of a
     * document type, its name, files, notations and entities in other files are kept; its other
     * declarations go, since the parser has carried them out.
     *
     * @return false when the device did not take it all, or when the document could not be loaded
     * again, since elements are nested more deeply than MRVDomLimits allows, or the name of an
     * element or attribute is none in XML; nothing is written then.
     */
    bool save(QIODevice &device) const;
    /**
     * As above, to the file @p fileName, which is replaced as a whole or, when anything fails, left
     * as it was. fileName() stays the name of what was loaded.
     *
     * @param error if given, receives a translated line on failure; untouched on success.
     */
    bool save(const QString &fileName, MRVErrorSink error = nullptr) const;
    /**
     * The file that was loaded, or the name that setFilename() gave; nothing is read or written
     * under it by itself.
     */
    QString fileName() const { return m_fileName; }
    /** Changes fileName(); nothing is read or written. */
    void setFilename(const QString &fileName) { m_fileName = fileName; }
    /**
     * Replaces the content by one element, made by createElement(), and makes it the work element;
     * there is no work child then. Always true; with an empty name the document is empty.
     *
     * createElement() explains @p spec and @p text.
     */
    bool setRoot(const QString &spec, const QString &text = QString());

    /**
     * The outcome of the last setContent() or load(), translated where it comes from this class;
     * empty before the first.
     */
    QString errorMessage() const { return m_errorMessage; }
    /**
     * Why the last setContent() or load() failed: what is wrong in the text, or the system's reason
     * where the file could not be read. Translated where it comes from this class; empty after a
     * success and before the first.
     */
    QString errorReason() const { return m_errorReason; }
    /** From 1; -1 when there was no error. */
    int errorLine() const { return m_errorLine; }
    /** From 1; -1 when there was no error. */
    int errorColumn() const { return m_errorColumn; }
    /**
     * The DOM itself. Replacing its content by its own functions leaves the cursor on what was
     * there before.
     */
    QDomDocument document() const { return m_document; }
    /** The root of the tree; null for an empty document. */
    QDomElement documentElement() const { return m_document.documentElement(); }

    //@}
    /** @name Cursor */
    //@{

    /** The work element; an element assigned to it does not move the work child. */
    QDomElement &currentElement() { return m_workElement; }
    const QDomElement &currentElement() const { return m_workElement; }
    /**
     * The work child; null where there is none. An element assigned to it does not move the work
     * element.
     */
    QDomElement &currentChild() { return m_workChild; }
    const QDomElement &currentChild() const { return m_workChild; }
    /** Moves the cursor; false for a null element. */
    bool setWorkElement(const QDomElement &e);
    /**
     * The work element's name; with its attributes, each follows as a blank and @name="value",
     * sorted by name and the value as it is, not escaped. Empty when there is no work element.
     */
    QString workElement(bool withAttributes = false) const;
    /** As workElement(), for the work child. */
    QString workChild(bool withAttributes = false) const;
    /** The path from the document element to the work element, such as "/root/items/item". */
    QString workPath(bool withAttributes = false) const;
    /**
     * Moves the cursor to what find() finds, or stays; an empty path is the work element itself.
     */
    bool cd(const QString &path);
    /**
     * Moves up by @p levels levels; false, having moved as far as possible, where there are fewer.
     * True for 0 and less.
     */
    bool cdUp(int levels = 1);
    bool cdRoot();
    /**
     * Moves to the next sibling of the work element that matches the last step in @p step.
     *
     * Where there is none, the cursor moves up to the parent. Deliberate: a loop that begins with
     * cd() into the first item and goes on while this is true ends where it began. An empty step
     * moves nothing.
     */
    bool cdNext(const QString &step);
    /**
     * Makes what the first step of @p path finds in the work element the work child; the rest of
     * the path does not matter. False, and nothing moves, when nothing is found or the step begins
     * with a full stop.
     */
    bool setChild(const QString &path);

    //@}
    /** @name Looking up */
    //@{

    /** The first element that @p path names; the work element for an empty path. */
    QDomElement find(const QString &path) const;
    /**
     * What the steps of the last path from @p index on (from 0) name below @p start; @p start when
     * none are left.
     */
    QDomElement find(QDomElement &start, unsigned int index) const;
    /**
     * The next match of the last relative find(): the next sibling of the child of the work element
     * through which it went that matches the first step and below which the rest of the path is
     * found. Deeper steps take their first match. Nothing after an absolute path, or one that
     * begins with a full stop.
     */
    QDomElement findNext() const;
    /**
     * All elements that @p path names, in the order of the document, each once: those that
     * remove(path, true) removes, as long as removing one of them does not change what the path
     * names. Nothing that findNext() depends on changes.
     */
    QVector<QDomElement> findAll(const QString &path) const;
    /**
     * The work element for programs: "path", its workPath(); "text", what get() gives;
     * "attributes", texts by name; "elements", the names of its child elements, each once.
     */
    QJsonObject toJson() const;
    /** Whether find() finds anything. */
    bool exists(const QString &path) const;
    /**
     * Why @p path finds nothing, for a message: a translated text that names the first step that
     * fails and where the steps before it lead, and a similar name that exists there. Null where
     * the path finds something.
     */
    QString whyMissing(const QString &path) const;
    /**
     * Whether @p e has the name that is the first part, and the other parts hold as predicates.
     *
     * @param parts the name of a step, then its predicates without "@": "id=rtf", "option".
     */
    bool matchElement(QDomElement e, const QStringList &parts) const;
    /** As above, for one @p step of a path, as it is written there. */
    bool matchElement(QDomElement e, const QString &step) const;

    //@}
    /** @name Structure */
    //@{

    /**
     * An element of this document that stands nowhere yet.
     *
     * @param spec its name as it stands, and, each after an "@", names of attributes, which all
     *             receive @p text trimmed. Deliberate: a value that is written after the name and
     *             "=" is not used.
     * @return a null element for an empty name.
     */
    QDomElement createElement(const QString &spec, const QString &text);
    /**
     * Adds a last child to the work element. The work child becomes the new element only where
     * there was no child before. Without a work element the new one becomes the document element
     * and the work element.
     *
     * @param name must not be empty, ".", ".." or hold "/", "@" or "=". Nothing else is checked
     *             here: save() refuses a name that XML does not allow.
     * @param text of the element; empty for none.
     * @return false, with nothing changed, for such a name, and where there is no work element but
     *        a document element.
     */
    bool append(const QString &name, const QString &text = QString());
    /**
     * As append(), but after the work child, or, with @p before, before it; the new element becomes
     * the work child.
     *
     * @param name as for append().
     * @param text of the element; empty for none.
     */
    bool insert(const QString &name, const QString &text = QString(), bool before = false);
    /**
     * As append(), but before the other children. Deliberate: the work child stays where there were
     * any.
     *
     * @param name as for append().
     * @param text of the element; empty for none.
     */
    bool prepend(const QString &name, const QString &text = QString());
    /**
     * Adds an empty last child and moves the cursor into it; there is no work child then. Refuses
     * what append() does, and to nest more deeply than MRVDomLimits allows.
     */
    bool create(const QString &name);
    /**
     * Adds a deep copy of @p node as last child; the work child becomes the last child, if that is
     * an element. Without a work element an element becomes the document element and the work
     * element; anything else is refused then.
     */
    bool append(const QDomNode &node);
    /**
     * Moves the cursor to @p path, creating what is missing of it.
     *
     * Where anything is missing, the steps are walked from the work element, also those of an
     * absolute path: call cdRoot() first. Steps that exist are entered, others are created.
     *
     * @return how many steps there are, found or created; 0 for an empty path and for one that
     *        holds "@" or "=".
     */
    int createPath(const QString &path);
    /**
     * As createPath(), but with every step checked, and an absolute path begins at the root, which
     * it makes where the document is empty.
     *
     * @param path  names of elements, "." and "..".
     * @param error if given, receives one translated line on failure; untouched on success.
     * @return false where a step is no name, the path leads out of the document, or does not begin
     *         with the document element. Elements that were made before that remain.
     */
    bool createElements(const QString &path, MRVErrorSink error = nullptr);
    /** Whether @p name is one that XML allows for elements and attributes. */
    static bool isXmlName(const QString &name);
    /**
     * Removes the first element that @p path names, or all that it names one after the other.
     *
     * The cursor stays: when it was on a removed element, it is on one outside the document
     * afterwards.
     *
     * @param all whether one is removed or all.
     * @return how many were removed.
     */
    int remove(const QString &path, bool all = false);

    //@}
    /**
     * @name Values
     *
     * T is one of short, int, long, long long and their unsigned forms, float, double, bool, QSize,
     * QPoint, QSizeF, QPointF, QStringList and QDateTime, and, for reading, char and unsigned char;
     * MRVDomText has the text forms. Where a text was found, a reader stores what it converts to, 0
     * or false for one that does not convert, and returns whether it converts. Where no text was
     * found, it returns false and stores nothing. A null @p out receives nothing: false.
     */
    //@{

    /** The word that is written for true and read, beside "true" and "yes", in any case. */
    QString trueString() const { return m_trueString; }
    void setTrueString(const QString &word) { m_trueString = word; }
    /** The word that is written for false and read, beside "false" and "no", in any case. */
    QString falseString() const { return m_falseString; }
    void setFalseString(const QString &word) { m_falseString = word; }

    /**
     * append() of an element with the value's text. Deliberate: a float is written with six
     * decimals here only.
     *
     * @param value of one of the types of this group.
     */
    template<typename T, typename = MRVDomText::IfAppended<T>>
    bool append(const QString &name, const T &value)
    {
        if constexpr (std::is_same_v<T, bool>) {
            return append(name, word(value));
        } else {
            return append(name, MRVDomText::appended(value));
        }
    }
    /** The UTF-8 text @p value; null is an empty text. */
    bool append(const QString &name, const char *value);
    /** An empty @p format is ISO 8601. The date-time @p value is not converted to UTC. */
    bool append(const QString &name, const QDateTime &value, const QString &format = QString());
    /**
     * As width and height, or x and y, separated by a comma.
     *
     * @param value    two numbers.
     * @param precision decimals, 0 to 99.
     */
    bool append(const QString &name, const QSizeF &value, int precision);
    bool append(const QString &name, const QPointF &value, int precision);

    /**
     * Makes @p text the first text of the element that @p path names.
     *
     * @return false when there is no such element, which is never created here, and when its first
     *        child is no text.
     */
    bool set(const QString &text, const QString &path = QString());
    /**
     * As text of one of the types of this group, the @p value in its written form. QSizeF and
     * QPointF have three decimals here and in setAttr().
     */
    template<typename T, typename = MRVDomText::IfWritten<T>>
    bool set(const T &value, const QString &path = QString())
    {
        return set(written(value), path);
    }
    bool set(const char *value, const QString &path = QString());
    /**
     * The date-time @p value in @p format, or in ISO 8601 where that is empty; it is not converted
     * to UTC.
     */
    bool set(const QDateTime &value, const QString &path = QString(),
             const QString &format = QString());

    /**
     * The text of the element that @p path names, all texts below it included, when its first child
     * is a text; else an empty text.
     *
     * @return false, with a null text, when there is no such element.
     */
    bool get(QString *out, const QString &path = QString()) const;
    template<typename T, typename = MRVDomText::IfRead<T>>
    bool get(T *out, const QString &path = QString()) const
    {
        QString text;
        return readText(path, &text) && MRVDomText::read(text, out);
    }
    /** Deliberate: true is "true", "yes" and trueString(), so that "1" is no boolean. */
    bool get(bool *out, const QString &path = QString()) const;
    /** Split at commas, without empty parts. An empty list where there is no such element. */
    bool get(QStringList *out, const QString &path = QString()) const;
    /**
     * An empty @p format is ISO 8601. Deliberate: the result is marked as UTC whatever the text
     * says.
     */
    bool get(QDateTime *out, const QString &path = QString(),
             const QString &format = QString()) const;
    /**
     * Up to @p size bytes of the text in Latin-1, filled up with NUL. Deliberate: the last byte of
     * the buffer is the digit 0, not NUL. A size below 1 writes nothing: false.
     *
     * @param buffer receives the bytes; null fails.
     */
    bool get(char *buffer, int size, const QString &path = QString()) const;

    /**
     * The text of what findNext() finds; false, and nothing is stored, when its first child is no
     * text.
     */
    bool getNext(QString *out) const;
    template<typename T, typename = MRVDomText::IfRead<T>>
    bool getNext(T *out) const
    {
        QString text;
        return getNext(&text) && MRVDomText::read(text, out);
    }
    bool getNext(bool *out) const;
    /** An empty @p separator does not split. */
    bool getNext(QStringList *out, const QString &separator = QStringLiteral(",")) const;
    /** See get() for @p format, and for @p buffer and @p size of the next one. */
    bool getNext(QDateTime *out, const QString &format = QString()) const;
    bool getNext(char *buffer, int size) const;

    /**
     * Sets an attribute of the element that @p path names.
     *
     * @param attrName must not be empty.
     * @param value    of one of the types of this group.
     * @param create   false: only where the element has the attribute.
     * @return whether it was set; deliberate: also true for @p create and an element that does not
     *         exist. False for an empty name.
     */
    bool setAttr(const QString &attrName, const QString &value, const QString &path = QString(),
                 bool create = true);
    template<typename T, typename = MRVDomText::IfWritten<T>>
    bool setAttr(const QString &attrName, const T &value, const QString &path = QString(),
                 bool create = true)
    {
        return setAttr(attrName, written(value), path, create);
    }
    bool setAttr(const QString &attrName, const char *value, const QString &path = QString(),
                 bool create = true);
    /** An empty @p format is ISO 8601. */
    bool setAttr(const QString &attrName, const QDateTime &value, const QString &path = QString(),
                 bool create = true, const QString &format = QString());

    /** The attribute @p attrName of @p element. With a null @p out only whether it has it. */
    bool getAttr(const QString &attrName, QString *out, const QDomElement &element) const;
    template<typename T, typename = MRVDomText::IfRead<T>>
    bool getAttr(const QString &attrName, T *out, const QDomElement &element) const
    {
        QString text;
        return getAttr(attrName, &text, element) && MRVDomText::read(text, out);
    }
    /**
     * Deliberate: "true", "yes", "false" and "no" only; trueString() and falseString() are not read
     * here.
     */
    bool getAttr(const QString &attrName, bool *out, const QDomElement &element) const;
    /**
     * Split at each @p separator, where that is not empty; an empty list where there is no such
     * attribute.
     */
    bool getAttr(const QString &attrName, QStringList *out, const QDomElement &element,
                 const QString &separator = QStringLiteral(",")) const;
    /** See get() for @p format, and for @p buffer and @p size of the next one. */
    bool getAttr(const QString &attrName, QDateTime *out, const QDomElement &element,
                 const QString &format = QString()) const;
    bool getAttr(const QString &attrName, char *buffer, int size, const QDomElement &element) const;

    /**
     * Removes the attribute @p attrName of the first element that @p path names, or of @p all that
     * it names. The elements remain.
     *
     * @return how many elements had it; 0 for an empty name.
     */
    int removeAttr(const QString &attrName, const QString &path = QString(), bool all = false);

    //@}

private:
    struct Predicate
    {
        QString attribute;
        QString value;
        bool compares; // else the attribute has to exist
    };
    struct Step
    {
        QString text; // as it stands in the path
        QString name;
        QVector<Predicate> predicates;
        int wayBack = -1; // the later ".." that leads back to where this step began
    };
    enum class Place { First, BeforeChild, AfterChild, Last };

    static Step stepOf(const QStringList &parts);
    static bool holds(const Step &step, const QDomElement &e);
    static bool predicatesHold(const Step &step, const QDomElement &e);
    const QVector<Step> &steps() const;
    QDomElement resolve(QDomElement e, int index, int end) const;
    QDomElement resolveBelow(const QDomElement &e, int index, int end) const;
    static void addChildren(const QDomElement &e, const Step &step, QVector<QDomElement> *children);
    static QStringList childNames(const QDomElement &element);
    QString firstMissing(const QString &path);
    int removeFound(const QString &path, const QString &attribute, bool all);
    int removeAll(const QString &path, const QString &attribute);
    bool leadsDown(const QString &path, QVector<QDomElement> *up) const;
    bool removeOne(QDomElement e, const QString &attribute);
    bool removeElement(const QDomElement &e);

    bool hasRoot() const;
    bool readText(const QString &path, QString *out) const;
    bool parse(const QString &text);
    bool refuse(const QString &message, int line, int column);
    void moveTo(const QDomElement &e);
    bool add(const QString &name, const QString &text, Place place);
    QDomText newText(const QString &text);

    QString word(bool value) const { return value ? m_trueString : m_falseString; }
    template<typename T>
    QString written(const T &value) const
    {
        if constexpr (std::is_same_v<T, bool>) {
            return word(value);
        } else {
            return MRVDomText::written(value);
        }
    }

    QDomDocument m_document{QStringLiteral("DomDoc")};
    QString m_fileName;
    QDomElement m_workElement;
    QDomElement m_workChild;
    QString m_currentName;
    mutable QVector<Step> m_pathSteps; // of m_path, once steps() has been asked for
    mutable QDomNode m_findPosition;
    QString m_errorMessage;
    QString m_errorReason;
    int m_errorLine = -1;
    int m_errorColumn = -1;
    QString m_trueString = QStringLiteral("true");
    QString m_falseString = QStringLiteral("false");
    mutable QString m_path; // what find() was last asked for
    mutable bool m_isParsed = false;
    mutable bool m_isAbsolute = false;
    mutable QDomElement m_root; // the document element when hasRoot() was last asked
    QVector<QDomElement> m_removed; // removed elements that the cursor is on or in
};
