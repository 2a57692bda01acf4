#include "archive/mrvdocumentsettings_p.h"

#include "fragment/mrvlaidoutformat.h"
#include "textformat/mrvtextformat.h"

#include <QFont>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextOption>
#include <QUrl>

#include <cmath>

namespace {

// Stored, so that no number may change its meaning or be used again.
enum Setting {
    DefaultFont = 0x200000, // QFont
    DefaultCharFormat = 0x200001, // QByteArray: the stored form; where it is not that of the font
    RootFrame = 0x200002, // QByteArray: its properties as those of a paragraph
    Margin = 0x200003, // double
    PageSize = 0x200004, // QSizeF; of a document without pages, nothing
    IndentWidth = 0x200005, // double
    DesignMetrics = 0x200006, // bool
    CursorMoveStyle = 0x200007, // int
    BaseUrl = 0x200008, // QUrl
    Title = 0x200009, // QString
    Url = 0x20000a, // QString
    Alignment = 0x20000b, // int
    TextDirection = 0x20000c, // int
    WrapMode = 0x20000d, // int
    OptionFlags = 0x20000e, // int
    TabDistance = 0x20000f, // double
    Tabs = 0x200010, // list of lists: position, type, delimiter as a number
};

// Beyond these, Qt's layout computes with numbers that it cannot have, or makes pages without end.
constexpr double LongestLength = 1e5;
constexpr double SmallestPage = 32;
constexpr double WidestIndent = 1000;
constexpr int MostTabs = 1000;

bool isLength(double length)
{
    return std::abs(length) <= LongestLength; // false for what is no number, too
}

bool isPage(const QSizeF &size)
{
    const auto isSide = [](double side) { return isLength(side) && side >= SmallestPage; };
    return isSide(size.width()) && isSide(size.height());
}

template<typename Format>
void copyProperties(const QTextFormat &from, Format *to)
{
    const QMap<int, QVariant> properties = from.properties();
    for (auto it = properties.cbegin(); it != properties.cend(); ++it) {
        to->setProperty(it.key(), it.value());
    }
}

QByteArray rootFrameOf(const QTextDocument &document)
{
    QTextBlockFormat format;
    copyProperties(mrvLaidOutFormat(document.rootFrame()->frameFormat()), &format);
    format.clearProperty(QTextFormat::ObjectIndex);
    return MRVTextFormat::toByteArray(format);
}

// Empty where it says no more than the font.
QByteArray defaultFormatOf(const QTextDocument &document)
{
    QTextDocument plain;
    plain.setDefaultFont(document.defaultFont());
    const QTextCharFormat format =
        mrvLaidOutFormat(MRVTextFormat::defaultCharFormat(document)).toCharFormat();
    return format == MRVTextFormat::defaultCharFormat(plain) ? QByteArray()
                                                             : MRVTextFormat::toByteArray(format);
}

void setTextOption(const QTextOption &option, QTextCharFormat *settings)
{
    settings->setProperty(Alignment, int(option.alignment()));
    settings->setProperty(TextDirection, int(option.textDirection()));
    settings->setProperty(WrapMode, int(option.wrapMode()));
    settings->setProperty(OptionFlags, int(option.flags()));
    settings->setProperty(TabDistance, option.tabStopDistance());
    QVariantList tabs;
    const QList<QTextOption::Tab> stops = option.tabs();
    for (const QTextOption::Tab &tab : stops) {
        tabs.append(
            QVariant(QVariantList{tab.position, int(tab.type), int(tab.delimiter.unicode())}));
    }
    settings->setProperty(Tabs, tabs);
}

QList<QTextOption::Tab> tabsOf(const QTextCharFormat &settings)
{
    QList<QTextOption::Tab> tabs;
    const QVariantList stored = settings.property(Tabs).toList();
    for (const QVariant &item : stored) {
        const QVariantList tab = item.toList();
        const int type = tab.value(1).toInt();
        if (tab.size() == 3 && isLength(tab.at(0).toDouble()) && type >= QTextOption::LeftTab
            && type <= QTextOption::DelimiterTab && tabs.size() < MostTabs) {
            tabs.append(QTextOption::Tab(tab.at(0).toDouble(), QTextOption::TabType(type),
                                         QChar(tab.at(2).toInt())));
        }
    }
    return tabs;
}

QTextOption textOptionOf(const QTextCharFormat &settings, QTextOption option)
{
    const int direction = settings.intProperty(TextDirection);
    const int mode = settings.intProperty(WrapMode);
    const double distance = settings.doubleProperty(TabDistance);
    option.setAlignment(Qt::Alignment(settings.intProperty(Alignment)));
    option.setFlags(QTextOption::Flags(settings.intProperty(OptionFlags)));
    option.setTabs(tabsOf(settings));
    if (direction >= Qt::LeftToRight && direction <= Qt::LayoutDirectionAuto) {
        option.setTextDirection(Qt::LayoutDirection(direction));
    }
    if (mode >= QTextOption::NoWrap && mode <= QTextOption::WrapAtWordBoundaryOrAnywhere) {
        option.setWrapMode(QTextOption::WrapMode(mode));
    }
    if (isLength(distance) && distance > 0) {
        option.setTabStopDistance(distance);
    }
    return option;
}

void applyRootFrame(const QTextCharFormat &settings, QTextDocument *document)
{
    const double margin = settings.doubleProperty(Margin);
    if (isLength(margin)) {
        document->setDocumentMargin(margin);
    }
    if (settings.hasProperty(RootFrame)) {
        const QTextFormat stored =
            mrvLaidOutFormat(MRVTextFormat::toBlockFormat(settings.property(RootFrame)));
        QTextFrameFormat format = document->rootFrame()->frameFormat();
        const QList<int> present = format.properties().keys();
        for (const int property : present) {
            // Others keep their places: Qt compares formats by the order of their properties, too,
            // and takes a root frame that differs from its own for a table around the text.
            if (property != QTextFormat::ObjectIndex && !stored.hasProperty(property)) {
                format.clearProperty(property);
            }
        }
        copyProperties(stored, &format);
        document->rootFrame()->setFrameFormat(format);
    }
}

} // namespace

QTextCharFormat mrvDocumentSettings(const QTextDocument &document)
{
    QTextCharFormat settings;
    settings.setProperty(DefaultFont, document.defaultFont());
    const QByteArray format = defaultFormatOf(document);
    if (!format.isEmpty()) {
        settings.setProperty(DefaultCharFormat, format);
    }
    settings.setProperty(RootFrame, rootFrameOf(document));
    settings.setProperty(Margin, document.documentMargin());
    if (document.pageSize().height() > 0) { // else the width is that of a view
        settings.setProperty(PageSize, document.pageSize());
    }
    settings.setProperty(IndentWidth, document.indentWidth());
    settings.setProperty(DesignMetrics, document.useDesignMetrics());
    settings.setProperty(CursorMoveStyle, int(document.defaultCursorMoveStyle()));
    settings.setProperty(BaseUrl, document.baseUrl());
    settings.setProperty(Title, document.metaInformation(QTextDocument::DocumentTitle));
    settings.setProperty(Url, document.metaInformation(QTextDocument::DocumentUrl));
    setTextOption(document.defaultTextOption(), &settings);
    return settings;
}

void mrvApplyDocumentSettings(const QTextCharFormat &settings, QTextDocument *document)
{
    if (settings.hasProperty(DefaultCharFormat)) {
        const QTextCharFormat format =
            MRVTextFormat::toCharFormat(settings.property(DefaultCharFormat));
        MRVTextFormat::setDefaultCharFormat(*document, mrvLaidOutFormat(format).toCharFormat());
    }
    const QVariant font = settings.property(DefaultFont);
    if (font.userType() == QMetaType::QFont && isLength(font.value<QFont>().pointSizeF())
        && isLength(font.value<QFont>().pixelSize())) {
        document->setDefaultFont(font.value<QFont>());
    }
    const QSizeF page = settings.property(PageSize).toSizeF();
    if (settings.hasProperty(PageSize) && isPage(page)) {
        document->setPageSize(page);
    }
    const double indent = settings.doubleProperty(IndentWidth);
    if (std::abs(indent) <= WidestIndent) {
        document->setIndentWidth(indent);
    }
    document->setUseDesignMetrics(settings.boolProperty(DesignMetrics));
    document->setDefaultCursorMoveStyle(
        Qt::CursorMoveStyle(settings.intProperty(CursorMoveStyle) == Qt::VisualMoveStyle));
    document->setBaseUrl(settings.property(BaseUrl).toUrl());
    document->setMetaInformation(QTextDocument::DocumentTitle, settings.stringProperty(Title));
    document->setMetaInformation(QTextDocument::DocumentUrl, settings.stringProperty(Url));
    document->setDefaultTextOption(textOptionOf(settings, document->defaultTextOption()));
    applyRootFrame(settings, document);
}
