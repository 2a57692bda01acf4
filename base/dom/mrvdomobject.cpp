#include "dom/mrvdomobject.h"

#include "dom/mrvdomdoc.h"

MRVDomObject::~MRVDomObject() = default;

bool MRVDomObject::loadFromDomElement(const QDomElement &element)
{
    MRVDomDoc doc;
    return doc.setContent(element) && loadFromDomDoc(doc);
}

QDomElement MRVDomObject::saveToDomElement() const
{
    MRVDomDoc doc;
    if (!saveToDomDoc(doc)) {
        return MRVDomDoc::EmptyElement;
    }
    const QDomElement element = doc.documentElement();
    // An element that outlives its document would keep pointing to its neighbours, which do not.
    QDomDocument document = doc.document();
    while (!element.nextSibling().isNull()) {
        document.removeChild(element.nextSibling());
    }
    while (!element.previousSibling().isNull()) {
        document.removeChild(element.previousSibling());
    }
    return element;
}
