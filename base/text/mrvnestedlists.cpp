#include "text/mrvnestedlists.h"

#include "text/mrvtextlistformat.h"
#include "textformat/mrvtextformat.h"

#include <QHash>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextList>
#include <QVector>

namespace {

int levelOf(const QTextBlock &block)
{
    return qMax(0, block.blockFormat().intProperty(MRVParagraphListLevelProperty));
}

// A list of Qt that looks like a level of a list.
QTextListFormat nestedFormat(const QTextListFormat &format, int level)
{
    constexpr int Deepest = 1000;
    const MRVTextListLevel shown = MRVTextListFormat::shownLevel(format, level);
    QTextListFormat nested = format;
    if (level > 0) {
        nested.clearProperty(MRVTextFormat::ListStartProperty);
    }
    nested.clearProperty(MRVListLevelsProperty);
    nested.clearProperty(QTextFormat::ListNumberSuffix);
    nested.setStyle(MRVTextListFormat::shownStyle(format, level));
    nested.setIndent(qMax(1, format.indent()) + qMin(level, Deepest));
    const int number = shown.text.indexOf(QLatin1String("%0"));
    if (shown.numberStyle > 0 && number >= 0 && shown.text != QLatin1String("%0.")) {
        nested.setNumberPrefix(shown.text.left(number));
        nested.setNumberSuffix(shown.text.mid(number + 2));
    }
    return nested;
}

// Nests the paragraphs of lists with levels, which come in document order.
class Nesting
{
public:
    void add(const QTextBlock &block)
    {
        QTextList *list = block.textList();
        const int level = levelOf(block);
        QVector<Open> &open = m_open[list->objectIndex()];
        while (!open.isEmpty() && open.constLast().level > level) {
            open.removeLast();
        }
        const bool isNew = open.isEmpty() || open.constLast().level < level;
        if (level == 0) {
            if (isNew) {
                open.append({0, list});
            }
            return;
        }
        const auto format = m_formats.insert(list->objectIndex(), list->format());
        mrvSetListLevel(*list, block, 0);
        if (isNew) {
            open.append({level, QTextCursor(block).createList(nestedFormat(*format, level))});
        } else {
            open.constLast().list->add(block);
        }
    }

    // The lists themselves are then their level 0. Those without paragraphs are gone.
    void finish(const QTextDocument &document) const
    {
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            QTextList *list = block.textList();
            const auto format = m_formats.constFind(list ? list->objectIndex() : -1);
            if (format != m_formats.constEnd() && list->item(0) == block) {
                list->setFormat(nestedFormat(*format, 0));
            }
        }
    }

private:
    struct Open
    {
        int level;
        QTextList *list;
    };
    // By object index: another list may get the place in memory of one without paragraphs.
    QHash<int, QVector<Open>> m_open; // outermost first
    QHash<int, QTextListFormat> m_formats; // of lists with levels
};

// A list with all lists within it.
struct Tree
{
    struct Item
    {
        QTextBlock block;
        int level;
    };
    QTextList *root = nullptr;
    QVector<Item> items; // of the lists within
    QList<MRVTextListLevel> levels;
    bool fits = true;
};

// Finds out which lists stand within which, from paragraphs in document order.
class Forest
{
public:
    void add(const QTextBlock &block)
    {
        const QTextFrame *frame = QTextCursor(block).currentFrame();
        QTextList *list = block.textList();
        if (frame != m_frame || (!list && !isInItem(block))) {
            m_open.clear();
        }
        m_frame = frame;
        if (!list) {
            return;
        }
        open(list);
        Tree &tree = m_trees[m_open.constLast().tree];
        const int level = m_open.size() - 1;
        tree.fits = tree.fits && levelOf(block) == 0;
        if (list != tree.root) {
            tree.items.append({block, level});
        }
    }

    const QVector<Tree> &trees() const { return m_trees; }

private:
    struct Open
    {
        QTextList *list;
        int indent;
        int tree;
    };

    bool isInItem(const QTextBlock &block) const
    {
        return !m_open.isEmpty() && block.blockFormat().indent() >= m_open.constFirst().indent;
    }

    void open(QTextList *list)
    {
        const QTextListFormat format = list->format();
        while (!m_open.isEmpty() && m_open.constLast().list != list
               && m_open.constLast().indent >= format.indent()) {
            m_open.removeLast();
        }
        if (!m_open.isEmpty() && m_open.constLast().list == list) {
            return;
        }
        const int known = m_treeOf.value(list, -1);
        if (known >= 0) {
            // It goes on where it is no longer open: only an outermost one may.
            m_trees[known].fits =
                m_trees.at(known).fits && m_open.isEmpty() && m_trees.at(known).root == list;
            if (!m_open.isEmpty()) {
                m_trees[m_open.constLast().tree].fits = false;
            }
            m_open = {{list, format.indent(), known}};
            return;
        }
        const int tree = m_open.isEmpty() ? m_trees.size() : m_open.constLast().tree;
        if (m_open.isEmpty()) {
            m_trees.append(Tree());
            m_trees.last().root = list;
        }
        m_treeOf.insert(list, tree);
        m_open.append({list, format.indent(), tree});
        addLevel(&m_trees[tree], format, m_open.size() - 1);
    }

    static void addLevel(Tree *tree, const QTextListFormat &format, int level)
    {
        const MRVTextListLevel shown = MRVTextListFormat::shownLevel(format, 0);
        if (level == tree->levels.size()) {
            tree->levels.append(shown);
        }
        const MRVTextListLevel &first = tree->levels.at(level);
        tree->fits = tree->fits && first.text == shown.text
            && first.numberStyle == shown.numberStyle && MRVTextListFormat::levels(format).isEmpty()
            && (level == 0 || !format.hasProperty(MRVTextFormat::ListStartProperty));
    }

    QVector<Tree> m_trees;
    QHash<QTextList *, int> m_treeOf;
    QVector<Open> m_open; // of one tree, outermost first
    const QTextFrame *m_frame = nullptr;
};

void apply(const Tree &tree)
{
    QTextListFormat format = tree.root->format();
    MRVTextListFormat::setLevels(format, tree.levels);
    tree.root->setFormat(format);
    for (const Tree::Item &item : tree.items) {
        tree.root->add(item.block);
        mrvSetListLevel(*tree.root, item.block, item.level);
    }
}

} // namespace

bool MRVNestedLists::hasLevels(const QTextDocument &document)
{
    // Some may be out of use, so a paragraph has to have one.
    const QVector<QTextFormat> formats = document.allFormats();
    QVector<bool> isLevel;
    for (const QTextFormat &format : formats) {
        isLevel.append(format.isBlockFormat() && format.objectIndex() >= 0
                       && format.intProperty(MRVParagraphListLevelProperty) > 0);
    }
    if (!isLevel.contains(true)) {
        return false;
    }
    QTextBlock block = document.begin();
    while (block.isValid() && !(isLevel.at(block.blockFormatIndex()) && block.textList())) {
        block = block.next();
    }
    return block.isValid();
}

bool MRVNestedLists::fromLevels(QTextDocument *document)
{
    if (!document || !hasLevels(*document)) {
        return false;
    }
    QTextCursor cursor(document);
    cursor.beginEditBlock();
    Nesting nesting;
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        if (block.textList()) {
            nesting.add(block);
        }
    }
    nesting.finish(*document);
    cursor.endEditBlock();
    return true;
}

bool MRVNestedLists::toLevels(QTextDocument *document)
{
    if (!document) {
        return false;
    }
    Forest forest;
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        forest.add(block);
    }
    bool hasChanged = false;
    QTextCursor cursor(document);
    cursor.beginEditBlock();
    for (const Tree &tree : forest.trees()) {
        if (tree.fits && !tree.items.isEmpty()) {
            apply(tree);
            hasChanged = true;
        }
    }
    cursor.endEditBlock();
    return hasChanged;
}
