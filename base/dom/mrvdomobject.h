#pragma once

#include "util/mrvbase_export.h"

#include <QDomElement>

class MRVDomDoc;

/**
 * An object that saves itself into an XML element and loads itself from one.
 *
 * @code
 * class Window : public MRVDomObject
 * {
 * public:
 *     bool loadFromDomDoc(MRVDomDoc &doc) override
 *     {
 *         return doc.get(&m_size, QStringLiteral("size"))
 *             && doc.get(&m_title, QStringLiteral("title"));
 *     }
 *     bool saveToDomDoc(MRVDomDoc &doc) const override
 *     {
 *         return doc.setRoot(QStringLiteral("window"))
 *             && doc.append(QStringLiteral("size"), m_size)
 *             && doc.append(QStringLiteral("title"), m_title);
 *     }
 *
 * private:
 *     QSize m_size;
 *     QString m_title;
 * };
 * const QDomElement saved = Window().saveToDomElement();
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVDomObject
{
public:
    virtual ~MRVDomObject();

    /** Reads the object's state; the cursor of @p doc stands on the object's element. */
    virtual bool loadFromDomDoc(MRVDomDoc &doc) = 0;
    /**
     * Writes the object's state into @p doc, which is empty: setRoot() or append() makes the root
     * element.
     */
    virtual bool saveToDomDoc(MRVDomDoc &doc) const = 0;

    /** Loads the object from a copy of @p element; false when that, or loadFromDomDoc(), fails. */
    bool loadFromDomElement(const QDomElement &element);
    /**
     * The element that the object saves itself as; null when saveToDomDoc() fails. It belongs to no
     * document: import it into the one that it is for.
     */
    QDomElement saveToDomElement() const;
};
