// Applies arbitrary operations with arbitrary paths to an XML document.

#include "dom/mrvdomdoc.h"

#include <cstdlib>

namespace {

QString takeText(const uint8_t *&data, const uint8_t *end)
{
    const uint8_t *start = data;
    while (data < end && *data != 0) {
        ++data;
    }
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(start), int(data - start));
    data += data < end;
    return text;
}

void apply(MRVDomDoc &doc, int operation, const QString &path)
{
    int number = 0;
    QStringList list;
    switch (operation) {
    case 0: {
        const QDomElement found = doc.find(path);
        for (int i = 0; i < 5 && !doc.findNext().isNull(); ++i) { }
        if (doc.exists(path) == found.isNull()) {
            std::abort();
        }
        break;
    }
    case 1:
        doc.cd(path);
        break;
    case 2:
        doc.cdNext(path);
        break;
    case 3:
        doc.createPath(path.left(40));
        break;
    case 4:
        doc.remove(path);
        break;
    case 5:
        doc.remove(path, true);
        break;
    case 6:
        doc.append(path, path);
        break;
    case 7:
        doc.insert(path, QString(), true);
        break;
    case 8:
        doc.prepend(path);
        break;
    case 9:
        doc.set(path, path);
        doc.setAttr(path, 1);
        break;
    case 10:
        doc.get(&number, path);
        doc.getNext(&list);
        break;
    case 11:
        doc.setChild(path);
        break;
    case 12:
        doc.setContent(path);
        break;
    default:
        doc.append(doc.createElement(path, path));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    MRVDomDoc doc;
    doc.setContent(QStringLiteral("<a k='1'><a><b k='2'/><a/></a><b><a k='1'/>t</b></a>"));
    const uint8_t *const end = data + qMin(size, size_t(400));
    while (data < end) {
        const int operation = *data++ % 14;
        apply(doc, operation, takeText(data, end));
        doc.workPath(true);
        doc.workChild(true);
    }
    return 0;
}
