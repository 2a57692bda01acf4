#include "dom/mrvdomdoc.h"

#include "core/mrvxmltext.h"
#include "dom/mrvdomblanks_p.h"

// Values as the text of elements and as attributes.

namespace {

// The words for true and false that are always read, and two of the document's own, which may be
// null.
bool readWord(const QString &text, const QString &ownTrue, const QString &ownFalse, bool *out)
{
    const QString word = text.trimmed().toLower();
    const auto isOwn = [&word](const QString &own) {
        return !own.isNull() && word == own.trimmed().toLower();
    };
    const bool isTrue =
        word == QLatin1String("true") || word == QLatin1String("yes") || isOwn(ownTrue);
    if (out) {
        *out = isTrue;
    }
    return out
        && (isTrue || word == QLatin1String("false") || word == QLatin1String("no")
            || isOwn(ownFalse));
}

} // namespace

bool MRVDomDoc::append(const QString &name, const char *value)
{
    return append(name, QString::fromLatin1(value));
}

bool MRVDomDoc::append(const QString &name, const QDateTime &value, const QString &format)
{
    return append(name, MRVDomText::written(value, format));
}

bool MRVDomDoc::append(const QString &name, const QSizeF &value, int precision)
{
    return append(name, MRVDomText::written(value, precision));
}

bool MRVDomDoc::append(const QString &name, const QPointF &value, int precision)
{
    return append(name, MRVDomText::written(value, precision));
}

bool MRVDomDoc::set(const QString &text, const QString &path)
{
    QDomElement element = find(path);
    if (element.isNull()) {
        return false;
    }
    if (!element.hasChildNodes()) {
        element.appendChild(newText(text));
        return true;
    }
    QDomText first = mrvFirstContent(element).toText();
    if (first.isNull()) {
        return false;
    }
    first.setData(mrvXmlText(text));
    return true;
}

bool MRVDomDoc::set(const char *value, const QString &path)
{
    return set(QString::fromLatin1(value), path);
}

bool MRVDomDoc::set(const QDateTime &value, const QString &path, const QString &format)
{
    return set(MRVDomText::written(value, format), path);
}

bool MRVDomDoc::readText(const QString &path, QString *out) const
{
    const QDomElement element = find(path);
    if (element.isNull()) {
        return false;
    }
    const QDomNode first = mrvFirstContent(element);
    if (!first.isText()) {
        *out = QLatin1String("");
    } else {
        // Most elements hold one text: no need to gather.
        *out = first.nextSibling().isNull() ? first.nodeValue() : element.text();
    }
    return true;
}

bool MRVDomDoc::get(QString *out, const QString &path) const
{
    QString text;
    const bool isFound = readText(path, &text);
    if (out) {
        *out = text;
    }
    return isFound && out;
}

bool MRVDomDoc::get(bool *out, const QString &path) const
{
    QString text;
    return readText(path, &text) && readWord(text, m_trueString, m_falseString, out);
}

bool MRVDomDoc::get(QStringList *out, const QString &path) const
{
    QString text;
    const bool isFound = readText(path, &text);
    return MRVDomText::read(text, QStringLiteral(","), out) && isFound;
}

bool MRVDomDoc::get(QDateTime *out, const QString &path, const QString &format) const
{
    QString text;
    return readText(path, &text) && MRVDomText::read(text, format, out);
}

bool MRVDomDoc::get(char *buffer, int size, const QString &path) const
{
    QString text;
    return readText(path, &text) && MRVDomText::read(text, buffer, size);
}

bool MRVDomDoc::getNext(QString *out) const
{
    const QDomElement element = findNext();
    if (!out || !mrvFirstContent(element).isText()) {
        return false;
    }
    *out = element.text();
    return true;
}

bool MRVDomDoc::getNext(bool *out) const
{
    QString text;
    return getNext(&text) && readWord(text, m_trueString, m_falseString, out);
}

bool MRVDomDoc::getNext(QStringList *out, const QString &separator) const
{
    QString text;
    const bool isFound = getNext(&text);
    return MRVDomText::read(text, separator, out) && isFound;
}

bool MRVDomDoc::getNext(QDateTime *out, const QString &format) const
{
    QString text;
    return getNext(&text) && MRVDomText::read(text, format, out);
}

bool MRVDomDoc::getNext(char *buffer, int size) const
{
    QString text;
    return getNext(&text) && MRVDomText::read(text, buffer, size);
}

bool MRVDomDoc::setAttr(const QString &attrName, const QString &value, const QString &path,
                        bool create)
{
    QDomElement element = find(path);
    const QString name = mrvXmlText(attrName);
    if (name.isEmpty() || (!create && !element.hasAttribute(name))) {
        return false;
    }
    // Deliberate: on a null element this does nothing, and counts as done.
    element.setAttribute(name, mrvXmlText(value));
    return true;
}

bool MRVDomDoc::setAttr(const QString &attrName, const char *value, const QString &path,
                        bool create)
{
    return setAttr(attrName, QString::fromLatin1(value), path, create);
}

bool MRVDomDoc::setAttr(const QString &attrName, const QDateTime &value, const QString &path,
                        bool create, const QString &format)
{
    return setAttr(attrName, MRVDomText::written(value, format), path, create);
}

bool MRVDomDoc::getAttr(const QString &attrName, QString *out, const QDomElement &element) const
{
    if (!element.hasAttribute(attrName)) {
        return false;
    }
    if (out) {
        *out = element.attribute(attrName);
    }
    return true;
}

bool MRVDomDoc::getAttr(const QString &attrName, bool *out, const QDomElement &element) const
{
    QString text;
    return getAttr(attrName, &text, element) && readWord(text, {}, {}, out);
}

bool MRVDomDoc::getAttr(const QString &attrName, QStringList *out, const QDomElement &element,
                        const QString &separator) const
{
    QString text;
    const bool isFound = getAttr(attrName, &text, element);
    return MRVDomText::read(text, separator, out) && isFound;
}

bool MRVDomDoc::getAttr(const QString &attrName, QDateTime *out, const QDomElement &element,
                        const QString &format) const
{
    QString text;
    return getAttr(attrName, &text, element) && MRVDomText::read(text, format, out);
}

bool MRVDomDoc::getAttr(const QString &attrName, char *buffer, int size,
                        const QDomElement &element) const
{
    QString text;
    return getAttr(attrName, &text, element) && MRVDomText::read(text, buffer, size);
}
