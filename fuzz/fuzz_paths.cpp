// Compares what MRVDomDoc finds by a path, and removes, with a slow second reading of the rules of
// paths, on arbitrary trees, cursors and paths.

#include "dom/mrvdomdoc.h"

#include <QStringList>

#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>

namespace {

// A second reading of the path rules, word for word, without any care for time.
struct NaivePaths
{
    QDomElement root, work;
    QStringList steps;
    QDomNode position;

    static bool matches(const QDomElement &e, const QStringList &parts)
    {
        if (e.isNull() || parts.isEmpty()) {
            return false;
        }
        const QString name = parts[0].trimmed();
        if (name != "." && name != ".." && name != e.tagName()) {
            return false;
        }
        for (const QString &part : parts.mid(1)) {
            const QString key = part.section('=', 0, 0).trimmed();
            if (part.contains('=') ? e.attribute(key, "") != part.section('=', 1).trimmed()
                                   : !e.hasAttribute(key)) {
                return false;
            }
        }
        return true;
    }
    QDomElement find(const QDomElement &start, int index)
    {
        if (start.isNull() || index >= steps.size()) {
            return start;
        }
        const QStringList parts = steps[index].split('@', Qt::SkipEmptyParts);
        const QString name = parts.value(0).trimmed();
        if (name == ".." || name == ".") {
            const QDomElement candidate = name == "." ? start : start.parentNode().toElement();
            return matches(candidate, parts) ? find(candidate, index + 1) : QDomElement();
        }
        for (QDomNode c = start.firstChild(); !c.isNull(); c = c.nextSibling()) {
            if (!matches(c.toElement(), parts)) {
                continue;
            }
            const QDomElement found = find(c.toElement(), index + 1);
            if (!found.isNull()) {
                if (index == 0) {
                    position = c;
                }
                return found;
            }
        }
        return {};
    }
    QDomElement find(const QString &path)
    {
        position.clear();
        if (root.isNull() || path.isEmpty()) {
            return root.isNull() ? root : work;
        }
        steps = path.split('/');
        if (steps.last().trimmed().isEmpty()) {
            steps.removeLast();
        }
        if (steps.isEmpty() || !steps[0].trimmed().isEmpty()) {
            return find(work, 0);
        }
        steps.removeFirst();
        if (!steps.isEmpty() && !matches(root, steps[0].split('@', Qt::SkipEmptyParts))) {
            return {};
        }
        return find(root, 1);
    }
    QDomElement findNext()
    {
        while (!position.isNull()) {
            position = position.nextSibling();
            if (matches(position.toElement(), steps[0].split('@', Qt::SkipEmptyParts))) {
                const QDomElement found = find(position.toElement(), 1);
                if (!found.isNull()) {
                    return found;
                }
            }
        }
        return {};
    }
};

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

QString one(FuzzedDataProvider *bytes, const QStringList &of)
{
    return of.at(bytes->ConsumeIntegralInRange(0, of.size() - 1));
}

void fill(MRVDomDoc *doc, FuzzedDataProvider *bytes)
{
    doc->setRoot(QStringLiteral("a"));
    QVector<QDomElement> all{doc->documentElement()};
    const auto any = [&] { return all.at(bytes->ConsumeIntegralInRange(0, all.size() - 1)); };
    for (int left = bytes->ConsumeIntegralInRange(0, 14); left > 0; --left) {
        doc->setWorkElement(any());
        doc->append(one(bytes, {"a", "a", "b"}));
        all << doc->currentElement().lastChildElement();
        if (bytes->ConsumeBool()) {
            all.last().setAttribute("id", one(bytes, {"1", "2"}));
        }
    }
    doc->setWorkElement(any());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzedDataProvider bytes(data, size);
    MRVDomDoc doc;
    fill(&doc, &bytes);
    QStringList steps;
    for (int left = bytes.ConsumeIntegralInRange(1, 5); left > 0; --left) {
        steps << one(&bytes, {"a", "b", "..", "."})
                + one(&bytes, {"", "@id", "@id=1", "@id=", " "});
    }
    const QString path = one(&bytes, {"", "/", "/a/"}) + steps.join('/') + one(&bytes, {"", "/"});

    NaivePaths naive{doc.documentElement(), doc.currentElement(), {}, {}};
    QDomElement found = doc.find(path);
    QDomElement expected = naive.find(path);
    for (; !expected.isNull() && found == expected; expected = naive.findNext()) {
        found = doc.findNext();
    }
    require(found == expected);

    MRVDomDoc copy(doc.documentElement());
    doc.cdRoot();
    NaivePaths other{copy.documentElement(), copy.documentElement(), {}, {}};
    int count = 0;
    for (QDomElement e = other.find(path); !e.isNull() && !e.parentNode().isNull();
         e = other.find(path)) {
        e.parentNode().removeChild(e);
        other.root = copy.documentElement();
        ++count;
    }
    require(doc.remove(path, true) == count);
    require(doc.document().toString() == copy.document().toString());
    return 0;
}
