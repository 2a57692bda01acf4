// The XML document against Qt's DOM used by hand, on files of 1, 10 and 50 MB.

#include "dom/mrvdomdoc.h"
#include "novel.h"

#include <QBuffer>
#include <QDomDocument>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <malloc.h>

namespace {

// The allocator puts off the work of a freed tree's million pieces until somebody asks for a large
// one: neither side is to pay for what the other left.
void tidyUp()
{
    malloc_trim(0);
}

// A binder with folders of items; every item has attributes, and elements with texts.
QByteArray binder(int bytes)
{
    QByteArray xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<project>\n";
    for (int folder = 0, item = 0; xml.size() < bytes; ++folder) {
        xml += "   <folder id=\"" + QByteArray::number(folder) + "\" title=\"Part\">\n";
        for (const int end = item + 200; item < end; ++item) {
            xml += "      <item id=\"" + QByteArray::number(item)
                + "\" kind=\"text\" created=\"2020-02-29\">\n         <title>Chapter "
                + QByteArray::number(item) + "</title>\n         <meta>\n            <words>"
                + QByteArray::number(item % 5000)
                + "</words>\n            <target>2000</target>\n            <done>false</done>\n"
                  "         </meta>\n      </item>\n";
        }
        xml += "   </folder>\n";
    }
    return xml + "</project>\n";
}

const QByteArray &sample(int megabytes)
{
    static QMap<int, QByteArray> samples;
    QByteArray &xml = samples[megabytes];
    if (xml.isEmpty()) {
        xml = binder(megabytes * 1000000);
    }
    return xml;
}

struct Documents
{
    explicit Documents(int megabytes)
    {
        QBuffer buffer(const_cast<QByteArray *>(&sample(megabytes)));
        ours.setContent(&buffer);
        theirs.setContent(sample(megabytes));
    }
    MRVDomDoc ours;
    QDomDocument theirs;
};

void parse(benchmark::State &state)
{
    const QByteArray &xml = sample(int(state.range(0)));
    std::unique_ptr<MRVDomDoc> ours;
    std::unique_ptr<QDomDocument> theirs;
    compare(
        state,
        [&] {
            QBuffer buffer(const_cast<QByteArray *>(&xml));
            ours->setContent(&buffer);
        },
        [&] { theirs->setContent(xml); },
        [&] {
            ours = std::make_unique<MRVDomDoc>();
            theirs = std::make_unique<QDomDocument>();
            tidyUp();
        });
}

void save(benchmark::State &state)
{
    Documents documents(int(state.range(0)));
    QTemporaryDir folder;
    compare(
        state, [&] { documents.ours.save(folder.filePath(QStringLiteral("ours.xml"))); },
        [&] {
            QFile file(folder.filePath(QStringLiteral("theirs.xml")));
            file.open(QIODevice::WriteOnly);
            QTextStream stream(&file);
            documents.theirs.save(stream, 3);
        },
        tidyUp);
}

// Without the disk, whose sync is the price of a checked file.
void saveInMemory(benchmark::State &state)
{
    Documents documents(int(state.range(0)));
    QByteArray bytes;
    const auto write = [&bytes](auto save) {
        bytes.clear();
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        save(buffer);
    };
    compare(
        state, [&] { write([&](QIODevice &device) { documents.ours.save(device); }); },
        [&] {
            write([&](QIODevice &device) {
                QTextStream stream(&device);
                documents.theirs.save(stream, 3);
            });
        },
        tidyUp);
}

// A path of four steps, the second with a predicate that few elements fulfil.
void lookUp(benchmark::State &state)
{
    Documents documents(int(state.range(0)));
    const QString path = QStringLiteral("folder/item@id=100/meta/words");
    int found = 0;
    compare(
        state,
        [&] {
            for (int i = 0; i < 1000; ++i) {
                found += !documents.ours.find(path).isNull();
            }
        },
        [&] {
            const QDomElement root = documents.theirs.documentElement();
            for (int i = 0; i < 1000; ++i) {
                QDomElement words;
                for (QDomElement folder = root.firstChildElement(QStringLiteral("folder"));
                     !folder.isNull() && words.isNull();
                     folder = folder.nextSiblingElement(QStringLiteral("folder"))) {
                    for (QDomElement item = folder.firstChildElement(QStringLiteral("item"));
                         !item.isNull() && words.isNull();
                         item = item.nextSiblingElement(QStringLiteral("item"))) {
                        if (item.attribute(QStringLiteral("id")) == QLatin1String("100")) {
                            words = item.firstChildElement(QStringLiteral("meta"))
                                        .firstChildElement(QStringLiteral("words"));
                        }
                    }
                }
                found += !words.isNull();
            }
        });
    benchmark::DoNotOptimize(found);
}

void readValues(benchmark::State &state)
{
    Documents documents(1);
    documents.ours.cd(QStringLiteral("folder/item/meta"));
    const QDomElement meta = documents.theirs.documentElement()
                                 .firstChildElement(QStringLiteral("folder"))
                                 .firstChildElement(QStringLiteral("item"))
                                 .firstChildElement(QStringLiteral("meta"));
    const QString words = QStringLiteral("words");
    const QString target = QStringLiteral("target");
    long sum = 0;
    compare(
        state,
        [&] {
            for (int i = 0; i < 5000; ++i) {
                int value = 0;
                documents.ours.get(&value, words);
                sum += value;
                documents.ours.get(&value, target);
                sum += value;
            }
        },
        [&] {
            for (int i = 0; i < 5000; ++i) {
                sum += meta.firstChildElement(words).text().toInt();
                sum += meta.firstChildElement(target).text().toInt();
            }
        });
    benchmark::DoNotOptimize(sum);
}

void refuse(benchmark::State &state)
{
    // Too deep at its very end.
    QByteArray xml = sample(int(state.range(0)));
    xml.chop(int(qstrlen("</project>\n")));
    xml += QByteArray("<a>").repeated(1001) + QByteArray("</a>").repeated(1001) + "</project>\n";
    MRVDomDoc doc;
    QDomDocument peer;
    compare(
        state,
        [&] {
            QBuffer buffer(&xml);
            doc.setContent(&buffer);
        },
        [&] { peer.setContent(xml); },
        [&] {
            peer = QDomDocument();
            tidyUp();
        });
}

// The cost of one element, which must not grow with their number.
template<typename Work>
void perElement(benchmark::State &state, Work work)
{
    const int count = int(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        MRVDomDoc doc;
        doc.setRoot(QStringLiteral("r"));
        for (int i = 0; i < count; ++i) {
            doc.append(i % 2 ? QStringLiteral("keep") : QStringLiteral("item"),
                       QStringLiteral("t"));
        }
        state.ResumeTiming();
        work(doc);
    }
    state.counters["ns_each"] = benchmark::Counter(
        double(count), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void removeAll(benchmark::State &state)
{
    perElement(state, [](MRVDomDoc &doc) { doc.remove(QStringLiteral("item"), true); });
}

void findAll(benchmark::State &state)
{
    perElement(state, [](MRVDomDoc &doc) {
        int found = 0;
        for (QDomElement e = doc.find(QStringLiteral("item")); !e.isNull(); e = doc.findNext()) {
            ++found;
        }
        benchmark::DoNotOptimize(found);
    });
}

void appendAll(benchmark::State &state)
{
    const int count = int(state.range(0));
    for (auto _ : state) {
        MRVDomDoc doc;
        doc.setRoot(QStringLiteral("r"));
        for (int i = 0; i < count; ++i) {
            doc.append(QStringLiteral("item"), i);
        }
    }
    state.counters["ns_each"] = benchmark::Counter(
        double(count), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

} // namespace

BENCHMARK(parse)->Arg(1)->Arg(10)->Arg(50)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(refuse)->Arg(1)->Arg(10)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(save)->Arg(1)->Arg(10)->Arg(50)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(saveInMemory)->Arg(1)->Arg(10)->Arg(50)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(lookUp)->Arg(1)->Arg(10)->Arg(50)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(readValues)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(removeAll)->RangeMultiplier(10)->Range(1000, 100000);
BENCHMARK(findAll)->RangeMultiplier(10)->Range(1000, 100000);
BENCHMARK(appendAll)->RangeMultiplier(10)->Range(1000, 100000);
