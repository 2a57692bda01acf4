#include "datarows.h"
#include "documentdump.h"
#include "documentnotation.h"
#include "text/mrvlistmarkercache.h"
#include "text/mrvnestedlists.h"
#include "text/mrvtextcursor.h"
#include "text/mrvtextlistformat.h"
#include "text/mrvtextrange.h"
#include "textformat/mrvtextformat.h"

#include <QTextDocumentFragment>
#include <QTextList>
#include <QtTest>

#include <random>

using Levels = MRVTextListFormat;

namespace {

/// Builds a document in the notation of data/cursors.tsv and returns its cursor.
QTextCursor build(QTextDocument *document, QString notation)
{
    fillDocument(document, QString(notation).remove('^').remove('|'));
    const int position = QString(notation).remove('^').indexOf('|');
    const int anchor = notation.remove('|').indexOf('^');
    QTextCursor cursor(document);
    cursor.setPosition(anchor < 0 ? position : anchor);
    cursor.setPosition(position, QTextCursor::KeepAnchor);
    return cursor;
}

QString notation(const QTextCursor &cursor)
{
    QString text;
    for (int i = 0; i < cursor.document()->characterCount(); ++i) {
        text += i == cursor.anchor() && cursor.hasSelection() ? "^" : "";
        text += i == cursor.position() ? "|" : "";
        text += cursor.document()->characterAt(i);
    }
    text.chop(1);
    return text.replace(QChar(0x2029), "\n")
        .replace(QChar(0xfdd0), "{")
        .replace(QChar(0xfdd1), "}");
}

/// Four paragraphs in a list, on the levels 1 to 4.
QTextList *buildList(QTextDocument *document)
{
    document->setPlainText("one\ntwo\nthree\nfour");
    QTextCursor cursor(document);
    cursor.select(QTextCursor::Document);
    QTextList *list = cursor.createList(QTextListFormat::ListDecimal);
    for (int i = 0; i < 4; ++i) {
        Levels::setBlockLevel(*list, list->item(i), i + 1);
    }
    return list;
}

/// The level of each paragraph in its list; "-" for paragraphs that are in none.
QString levelsOf(const QTextDocument &document)
{
    QStringList levels;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QTextList *list = block.textList();
        levels << (list ? QString::number(Levels::blockLevel(*list, block)) : "-");
    }
    return levels.join(' ');
}

} // namespace

class tst_Lists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ranges()
    {
        QTextDocument document;
        QTextCursor cursor = build(&document, "one |two ^three");
        QTextCharFormat italic;
        italic.setFontItalic(true);
        cursor.mergeCharFormat(italic);
        const MRVTextCursorInfo info(cursor);
        QVERIFY(info.charFormat.fontItalic()); // though the character before the position is not
        QVERIFY(MRVTextCursor::selectionEndCharFormat(cursor).fontItalic());
        QCOMPARE(info.toTextRangeInfo().range, MRVTextRange(4, 8));

        QTextDocument other("something");
        const auto there = MRVTextCursorInfo::fromTextRangeInfo(info.toTextRangeInfo(), &other);
        QCOMPARE(notation(there.cursor), QString("some^thin|g"));
        QVERIFY(there.charFormat.fontItalic());
        QCOMPARE(MRVTextRange(MRVTextRange(99, -3).toTextCursor(&other)), MRVTextRange(0, 9));

        const QMap<MRVTextRange, int> ordered{{{4, 9}, 2}, {{5, 5}, 4}, {{4, 10}, 3}, {{1, 99}, 1}};
        QCOMPARE(ordered.values(), QList<int>({1, 2, 3, 4}));
    }

    void cursors_data() { addRows("cursors.tsv"); }
    void cursors()
    {
        QFETCH(QString, operation);
        QFETCH(QString, before);
        QTextDocument document;
        QTextCursor cursor = build(&document, before);
        QCOMPARE(notation(cursor), before);
        const QString name = operation.section(", ", 0, 0);
        const bool atEdge = operation.endsWith("true");
        if (name == "trim") {
            MRVTextCursor::trimTrailingSpaces(&cursor);
        } else if (name == "block" || name == "separator") {
            MRVTextCursor::selectBlockUnderCursor(&cursor, name == "separator");
        } else if (name == "image") {
            cursor = MRVTextCursor::selectImage(cursor);
        }
        const QHash<QString, bool> answers{
            {"before", MRVTextCursor::hasWordBorderBefore(cursor, atEdge)},
            {"after", MRVTextCursor::hasWordBorderAfter(cursor, atEdge)},
            {"many", MRVTextCursor::hasMultipleBlocksSelected(cursor)},
            {"cells", MRVTextCursor::complexSelectionTable(cursor) != nullptr},
        };
        const QString answer = answers.value(name) ? "true" : "false";
        QTEST(answers.contains(name) ? answer : notation(cursor), "result");
    }

    void replaceText_data() { addRows("replacements.tsv"); }
    void replaceText()
    {
        QFETCH(QString, old);
        QFETCH(QString, formats);
        QFETCH(QString, text);
        QFETCH(QString, expected);
        for (const int before : {0, 500}) { // alone, and as a small part of a paragraph
            QTextDocument document;
            fillDocument(&document, QString(before, ' ') + old);
            for (int i = 0; i < formats.size(); ++i) {
                QTextCharFormat format;
                format.setProperty(MRVTextFormat::ExtraProperty4, formats.at(i).digitValue());
                if (old.at(i) == '#') {
                    format.setProperty(QTextFormat::ObjectType, QTextFormat::ImageObject);
                }
                MRVTextRange(before + i, before + i + 1)
                    .toTextCursor(&document)
                    .setCharFormat(format);
            }
            const QStringList start = documentDump(document);
            document.clearUndoRedoStacks();
            QTextCursor cursor = MRVTextRange(before, 9999).toTextCursor(&document);
            MRVTextCursor::replaceText(cursor, text);

            QVERIFY(cursor.atEnd());
            QVERIFY(!cursor.hasSelection());
            QCOMPARE(document.toPlainText().mid(before), QString(text).replace("\r\n", "\n"));
            for (int i = 0; i < expected.size(); ++i) {
                cursor.setPosition(before + i + 1);
                const QTextCharFormat format = cursor.charFormat();
                const int number = format.intProperty(MRVTextFormat::ExtraProperty4);
                QVERIFY(cursor.atBlockStart() || number == expected.at(i).digitValue());
                QVERIFY(!format.isImageFormat());
            }
            QCOMPARE(document.isUndoAvailable(), old != text);
            document.undo();
            QCOMPARE(documentDump(document), start);
            QVERIFY(!document.isUndoAvailable());
        }
    }

    void nulls()
    {
        QTextCursor null;
        QVERIFY(MRVTextRange(1, 2).toTextCursor(nullptr).isNull());
        QCOMPARE(MRVTextRangeInfo(null).range, MRVTextRange());
        QVERIFY(MRVTextCursor::selectImage(null).isNull());
        QVERIFY(!MRVTextCursor::complexSelectionTable(null));
        QVERIFY(!MRVTextCursor::hasWordBorderBefore(null, true));
        QVERIFY(!MRVTextCursor::hasWordBorderAfter(null, true));
        QVERIFY(!MRVTextCursor::hasMultipleBlocksSelected(null));
        QVERIFY(MRVTextCursor::selectionEndCharFormat(null).isEmpty());
        for (QTextCursor *cursor : {&null, static_cast<QTextCursor *>(nullptr)}) {
            MRVTextCursor::trimTrailingSpaces(cursor);
            MRVTextCursor::selectBlockUnderCursor(cursor, true);
        }
        MRVTextCursor::replaceText(null, "text");
        Levels::clearListProperties(null);
        Levels::clearSelectedBlocksFromTextList(null);
        Levels::clearListPropertiesAndTextList(nullptr, 0);
    }

    void levels()
    {
        const QList<MRVTextListLevel> two{{"%0.", 1, 36.0, 18.0}, {"*", 0, 72.0, 9.0}};
        QTextListFormat format;
        Levels::setLevels(format, two);
        QCOMPARE(Levels::levels(format), two);
        QCOMPARE(Levels::itemText(format, 1), QString("*"));
        QCOMPARE(Levels::numberStyle(format, 0), 1);
        QCOMPARE(Levels::leftIndent(format, 2), 0.0);
        QCOMPARE(Levels::textIndent(format, 1), 9.0);

        // As a part of a format that can be stored.
        QVariantList levels = format.property(MRVListLevelsProperty).toList();
        QTextBlockFormat block;
        block.setProperty(MRVListLevelsProperty, levels);
        const QByteArray bytes = MRVTextFormat::toByteArray(block);
        QVERIFY(bytes.contains("QTextListFormat::Level"));
        QCOMPARE(MRVTextFormat::toBlockFormat(bytes), block);
        for (int size = 0; size < bytes.size(); ++size) {
            QVERIFY(MRVTextFormat::toBlockFormat(bytes.left(size)).isEmpty());
        }

        levels[0] = "no level";
        format.setProperty(MRVListLevelsProperty, levels);
        QCOMPARE(Levels::levels(format), QList<MRVTextListLevel>({{}, two.at(1)}));
        format.setProperty(MRVListLevelsProperty, QString("1. "));
        QVERIFY(Levels::levels(format).isEmpty());

        QVERIFY(two.at(0) == MRVTextListLevel({"%0.", 1, 36.0 + 1e-14, 18.0}));
        QVERIFY(two.at(0) != MRVTextListLevel({"%0.", 1, 36.0, 18.0 + 1e-10}));
    }

    void styles()
    {
        QTextListFormat format;
        QCOMPARE(Levels::style(format), QTextListFormat::ListDisc);
        const QString texts[] = {"●", "○", "■", "%0.", "%0.", "%0.", "%0.", "%0."};
        for (int i = 0; i < 8; ++i) {
            const auto style = QTextListFormat::Style(-1 - i); // Qt counts them down
            Levels::setStyle(format, style);
            const QList<MRVTextListLevel> one{{texts[i], qMax(0, i - 2), 36.0, 18.0}};
            QCOMPARE(Levels::levels(format), one);
            QCOMPARE(format.style(), style);
            format.clearProperty(QTextFormat::ListStyle);
            QCOMPARE(Levels::style(format), style);
        }
    }

    void markers_data() { addRows("list-markers.tsv"); }
    void markers()
    {
        QTextListFormat format;
        QList<MRVTextListLevel> own;
        for (const QString &level : cell("list").split(' ')) {
            own << MRVTextListLevel{level.section(':', 1), level.section(':', 0, 0).toInt(), 0, 0};
        }
        format.setStyle(QTextListFormat::Style(qMin(0, own.first().numberStyle)));
        if (own.first().numberStyle >= 0) {
            Levels::setLevels(format, own);
        }
        format.setProperty(MRVTextFormat::ListStartProperty, cell("start").toInt());
        const QStringList levels = cell("levels").split(' ');
        QTextDocument document(QString(levels.size(), '\n'));
        QTextList *list = QTextCursor(document.findBlock(levels.size())).createList(format);
        QTextList *other = nullptr; // among the items, it does not count for them
        for (int i = 0; i < levels.size(); ++i) {
            const QTextBlock block = document.findBlock(i);
            if (levels.at(i) != "-") {
                list->add(block);
                Levels::setBlockLevel(*list, block, levels.at(i).toInt());
            } else if (!other) {
                other = QTextCursor(block).createList(QTextListFormat::ListStyleUndefined);
            }
        }
        QStringList shown;
        for (const MRVListMarker &marker : mrvListMarkers(document).mid(0, levels.size())) {
            shown << (marker.text.isEmpty() ? "-" : marker.text);
        }
        QTEST(shown.join(' '), "markers");
    }

    void markerCache_data()
    {
        QTest::addColumn<bool>("isLaidOut");
        QTest::newRow("laid out") << true;
        QTest::newRow("not laid out") << false;
    }
    // The cache follows random edits, undone and redone, and says when markers change.
    void markerCache()
    {
        QFETCH(bool, isLaidOut);
        const auto markersOf = [](const QVector<MRVListMarker> &markers) {
            QStringList texts;
            for (const MRVListMarker &marker : markers) {
                if (marker.level < 0) {
                    continue;
                }
                texts << QString("%1:%2:%3").arg(marker.level).arg(marker.number).arg(marker.text);
            }
            return texts;
        };
        QTextDocument document("one\ntwo\nthree\nfour");
        buildList(&document);
        if (isLaidOut) {
            document.documentLayout();
        }
        MRVListMarkerCache cache(&document);
        QStringList shown = markersOf(mrvListMarkers(document));
        cache.marker(document.begin());
        QSignalSpy changes(&cache, &MRVListMarkerCache::markersChanged);
        std::mt19937 random(7);
        for (int edit = 0; edit < 3000; ++edit) {
            QTextCursor cursor(&document);
            cursor.setPosition(int(random() % unsigned(document.characterCount())));
            QTextCursor other = cursor;
            cursor.setPosition(int(random() % unsigned(document.characterCount())));
            QTextList *list = cursor.currentList();
            switch (random() % (document.blockCount() > 40 ? 12 : 10)) {
            case 0:
                cursor.insertText("a\nb");
                break;
            case 1:
                cursor.insertBlock();
                break;
            case 2:
                cursor.insertBlock(QTextBlockFormat());
                break;
            case 3:
                cursor.createList(QTextListFormat::Style(-4 - int(random() % 3)));
                break;
            case 4:
                if (list) {
                    Levels::setBlockLevel(*list, cursor.block(), int(random() % 4));
                }
                break;
            case 5:
                if (list) {
                    QTextListFormat format = list->format();
                    format.setProperty(MRVTextFormat::ListStartProperty, int(random() % 9));
                    list->setFormat(format);
                }
                break;
            case 6:
                if (other.currentList() && !list) {
                    other.currentList()->add(cursor.block());
                } else {
                    Levels::clearBlockAtPositionFromTextList(cursor);
                }
                break;
            case 7:
                document.undo();
                break;
            case 8:
                document.redo();
                break;
            case 9:
                cursor.insertText("x");
                break;
            default: // an edit block of two places
                cursor.beginEditBlock();
                other.insertBlock();
                cursor.setPosition(qMax(0, cursor.position() - 60), QTextCursor::KeepAnchor);
                cursor.removeSelectedText();
                cursor.endEditBlock();
            }
            QVector<MRVListMarker> cached;
            for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
                cached << cache.marker(block);
            }
            const QStringList now = markersOf(mrvListMarkers(document));
            QCOMPARE(markersOf(cached), now);
            QVERIFY(now == shown || !changes.isEmpty());
            shown = now;
            changes.clear();
        }
        QTextCursor(document.begin()).insertText("a letter");
        QCOMPARE(changes.isEmpty(), isLaidOut);
        QTextDocument elsewhere("text");
        QCOMPARE(cache.marker(elsewhere.begin()).level, -1);
        QCOMPARE(cache.marker(QTextBlock()).level, -1);
    }

    void nesting_data() { addRows("list-nesting.tsv"); }
    // Lists within lists become levels and the same lists within lists again.
    void nesting()
    {
        QTextDocument document;
        document.setHtml(cell("html"));
        const auto nested = [&document] {
            QStringList lists;
            for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
                const QTextList *list = block.textList();
                lists << (list ? QString("%1%2")
                                     .arg(list->format().indent())
                                     .arg(list->itemText(block))
                               : "-");
            }
            return lists;
        };
        const QStringList before = nested();
        const QStringList dump = documentDump(document);
        document.clearUndoRedoStacks();
        const bool isNested = !cell("levels").contains("1");
        QCOMPARE(MRVNestedLists::toLevels(&document), !isNested);
        QTEST(levelsOf(document), "levels");
        QCOMPARE(MRVNestedLists::hasLevels(document), !isNested);
        QVERIFY(!MRVNestedLists::toLevels(&document));
        document.undo();
        QCOMPARE(documentDump(document), dump);
        QVERIFY(!document.isUndoAvailable());
        MRVNestedLists::toLevels(&document);
        QCOMPARE(MRVNestedLists::fromLevels(&document), !isNested);
        QCOMPARE(nested(), before);
    }

    void edits_data() { addRows("list-edits.tsv"); }
    void edits()
    {
        const QHash<QString, std::function<void(QTextCursor &)>> edits{
            {"split", [](QTextCursor &c) { c.insertBlock(); }},
            {"remove", [](QTextCursor &c) { c.removeSelectedText(); }},
            {"paste",
             [](QTextCursor &c) {
                 const QTextDocumentFragment fragment = c.selection();
                 c.movePosition(QTextCursor::End);
                 c.insertFragment(fragment);
             }},
            {"set", [](QTextCursor &c) { Levels::setBlockLevel(*c.currentList(), c.block(), -1); }},
            {"clear properties", [](QTextCursor &c) { Levels::clearListProperties(c); }},
            {"clear list", [](QTextCursor &c) { Levels::clearBlockAtPositionFromTextList(c); }},
            {"clear both", [](QTextCursor &c) { Levels::clearListPropertiesAndTextList(c); }},
            {"clear all", [](QTextCursor &c) { Levels::clearSelectedBlocksFromTextList(c); }},
        };
        QFETCH(QString, edit);
        QTextDocument document;
        QTextList *list = buildList(&document);
        QTextBlockFormat extra;
        extra.setProperty(MRVTextFormat::ListExtraProperty1, 1);
        extra.setProperty(MRVTextFormat::ListExtraProperty2, 2);
        QTextCursor(list->item(1)).mergeBlockFormat(extra);
        document.clearUndoRedoStacks();
        const QStringList start = documentDump(document);
        QTextCursor cursor =
            MRVTextRange(cell("from").toInt(), cell("to").toInt()).toTextCursor(&document);

        edits.value(edit)(cursor);
        QTEST(levelsOf(document), "levels");
        const QTextBlockFormat second = document.findBlock(4).blockFormat();
        const int extras = second.hasProperty(MRVTextFormat::ListExtraProperty1)
            + second.hasProperty(MRVTextFormat::ListExtraProperty2);
        QTEST(QString("%1 %2").arg(second.indent()).arg(extras), "second");
        document.undo();
        QCOMPARE(documentDump(document), start);
        QVERIFY(!document.isUndoAvailable());
        document.redo();
        QTEST(levelsOf(document), "levels");
        if (edit.startsWith("clear")) {
            document.setModified(false);
            edits.value(edit)(cursor);
            QVERIFY(!document.isModified());
            list->add(cursor.block());
            QCOMPARE(Levels::blockLevel(*list, cursor.block()), 0);
        }
    }

    void wholeList()
    {
        QTextDocument document;
        QTextList *list = buildList(&document);
        QVERIFY(blockLevels(*list).isEmpty());
        list->setProperty("BlockLevels", 7);
        QVERIFY(blockLevels(*list).isEmpty());

        const MRVTextBlockLevelMap own{{list->item(1), 7}};
        list->setProperty("BlockLevels", QVariant::fromValue(own));
        QCOMPARE(blockLevels(*list), own);

        const MRVTextBlockLevelMap levels{{list->item(0), 0}, {list->item(2), 5}};
        setBlockLevels(*list, levels);
        document.undo();
        QCOMPARE(levelsOf(document), QString("1 2 3 4"));
        document.redo();
        document.setModified(false);
        setBlockLevels(*list, levels);
        QVERIFY(!document.isModified());
        QCOMPARE(blockLevels(*list), levels);
        QCOMPARE(list->property("BlockLevels").typeName(), "MRVTextBlockLevelMap");
        list->setProperty("BlockLevels", QVariant::fromValue(own));
        QCOMPARE(blockLevels(*list), own);
        setBlockLevels(*list, levels);
        Levels::setBlockLevel(*list, list->item(3), 6);
        // The map that is kept names a paragraph that is gone then.
        MRVTextRange(8, 14).toTextCursor(&document).removeSelectedText();
        QCOMPARE(blockLevels(*list).values(), QList<int>({0, 6}));
    }
};

QTEST_MAIN(tst_Lists)
#include "tst_lists.moc"
