#include "datarows.h"

#include "autoreplace/mrvautoreplacelist.h"

#include <QDataStream>
#include <QtTest>

#include <random>

namespace {

// The stored forms, written without any stream.
QByteArray number(quint32 value)
{
    QByteArray bytes;
    for (int shift = 24; shift >= 0; shift -= 8) {
        bytes += char(value >> shift);
    }
    return bytes;
}

QByteArray text(const QString &string)
{
    QByteArray bytes = number(string.isNull() ? 0xFFFFFFFFu : quint32(string.size() * 2));
    for (QChar unit : string) {
        (bytes += char(unit.row())) += char(unit.cell());
    }
    return bytes;
}

QByteArray stored(const MRVAutoReplaceList &list)
{
    QByteArray bytes = number(1) + number(quint32(list.size()));
    for (const MRVAutoReplace &entry : list) {
        bytes += char(entry.enabled) + text(entry.match) + text(entry.replacement);
    }
    return bytes;
}

MRVAutoReplace byTheRule(const MRVAutoReplaceList &list, const QString &typed)
{
    MRVAutoReplace best;
    for (const MRVAutoReplace &entry : list) {
        if (entry.enabled && entry.match.size() > best.match.size()
            && typed.endsWith(entry.match)) {
            best = entry;
        }
    }
    return best;
}

class Texts
{
public:
    int below(int end) { return int(m_random() % unsigned(end)); }
    QString text(int longest)
    {
        QString text;
        for (int left = below(longest + 1); left > 0; --left) {
            text += QStringLiteral("ab\u00e9\U0001F600").at(below(m_letters));
        }
        return text;
    }
    MRVAutoReplace entry() { return {below(4) > 0, text(6), text(3)}; }
    void setLetters(int letters) { m_letters = letters; }

private:
    std::mt19937 m_random{1};
    int m_letters = 5;
};

} // namespace

class TestAutoReplace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults()
    {
        const MRVAutoReplaceList expected = MRVAutoReplaceList::defaultReplacements();
        QCOMPARE(expected.size(), 33);
        for (const QStringList &row : rowsOf("autoreplace.tsv")) {
            const MRVAutoReplace entry{row.value(3) == "yes", row.at(1), row.at(2)};
            QCOMPARE(expected.at(row.at(0).toInt()), entry);
        }
        QCOMPARE(MRVAutoReplaceList::defaultReplacementsByteArray(), stored(expected));
        QCOMPARE(expected.toByteArray(), stored(expected));
        QCOMPARE(MRVAutoReplace::ordinals(), MRVAutoReplaceList(expected.mid(27)));
        QVERIFY(expected.containsMatch("1/2"));
        QVERIFY(!expected.containsMatch("(C)"));
        QVERIFY(expected.containsReplacement("2nd", "2n"));
        QVERIFY(!expected.containsReplacement("2nd", "2r"));
    }

    void matchesOfDefaults_data() { addRows("autoreplacematches.tsv"); }
    void matchesOfDefaults()
    {
        QFETCH(QString, match);
        const MRVAutoReplace found =
            MRVAutoReplaceList::defaultReplacements().bestMatch(cell("typed"));
        QCOMPARE(found.match, match);
        QCOMPARE(found.enabled, !match.isEmpty());
        QCOMPARE(found.replacement.isEmpty(), match.isEmpty());
    }

    void agreesWithScan()
    {
        Texts texts;
        for (int round = 0; round < 200; ++round) {
            MRVAutoReplaceList list;
            texts.setLetters(1 + round % 5);
            for (int left = round * 2; left > 0; --left) {
                list << texts.entry();
            }
            for (int i = 0; i < 100; ++i) {
                const QString typed = texts.text(9);
                QCOMPARE(list.bestMatch(typed), byTheRule(list, typed));
            }
            QCOMPARE(list.toByteArray(), stored(list));
        }
    }

    // However the list is changed, also through what was kept from before a search.
    void seesChanges()
    {
        Texts texts;
        for (int round = 0; round < 40; ++round) {
            MRVAutoReplaceList list;
            while (list.size() < 100) {
                list << texts.entry();
            }
            MRVAutoReplaceList other = list;
            list.bestMatch("a");
            MRVAutoReplace *kept = &list[50];
            for (int i = 0; i < 60; ++i) {
                const int at = texts.below(list.size());
                switch (texts.below(7)) {
                case 0:
                    list << texts.entry();
                    break;
                case 1:
                    *kept = texts.entry();
                    break;
                case 2:
                    list.replace(at, texts.entry());
                    break;
                case 3:
                    kept = &*(list.begin() + at);
                    break;
                case 4:
                    other = list;
                    break;
                case 5:
                    std::swap(list, other);
                    kept = &list.last();
                    break;
                case 6:
                    list = other;
                    kept = &list.first();
                    break;
                }
                const QString typed = texts.text(7);
                QCOMPARE(other.bestMatch(typed), byTheRule(other, typed));
                QCOMPARE(list.bestMatch(typed), byTheRule(list, typed));
                *kept = {true, typed, "kept"};
                QCOMPARE(list.bestMatch(typed), byTheRule(list, typed));
                QCOMPARE(other.bestMatch(typed), byTheRule(other, typed));
            }
        }
    }

    void readsWhatIsThere_data() { addRows("autoreplaceforms.tsv"); }
    void readsWhatIsThere()
    {
        MRVAutoReplaceList list{{true, "to be", "cleared"}};
        QString error;
        list.fromByteArray(QByteArray::fromHex(cell("bytes").toLatin1()), &error);
        QTEST(QString(error.isEmpty() ? "whole" : ""), "whole");
        QStringList entries;
        for (const MRVAutoReplace &entry : qAsConst(list)) {
            entries << entry.match + '=' + entry.replacement + (entry.enabled ? "" : " off");
        }
        QTEST(entries.join(", "), "entries");
    }

    void missingOrdinals()
    {
        MRVAutoReplaceList list = MRVAutoReplaceList::defaultReplacements();
        MRVAutoReplaceList::appendMissingOrdinals(&list);
        QCOMPARE(list, MRVAutoReplaceList::defaultReplacements());
        list = {{true, "1st", "1R"}, {true, "2nd", "2n"}};
        MRVAutoReplaceList::appendMissingOrdinals(&list);
        QCOMPARE(list.size(), 7);
        QCOMPARE(list.at(5), (MRVAutoReplace{false, "1st", "1r"}));
        QCOMPARE(list.at(6), (MRVAutoReplace{false, "3rd", "3r"}));
    }

    void entryStream()
    {
        const MRVAutoReplace entry{true, QString(1000000, QChar(0x2190)), QString()};
        QByteArray bytes;
        QDataStream writer(&bytes, QIODevice::WriteOnly);
        writer << entry;
        QCOMPARE(bytes, number(1) + char(1) + text(entry.match) + text(QString()));
        bytes.replace(0, 4, number(77));
        MRVAutoReplace again{false, "old", "old"};
        QDataStream reader(bytes);
        reader >> again;
        QCOMPARE(again, entry);
        QVERIFY(again.replacement.isNull());
    }
};

QTEST_APPLESS_MAIN(TestAutoReplace)

#include "tst_autoreplace.moc"
