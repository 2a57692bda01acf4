#include "screenplay/mrvscriptscenes.h"

#include "screenplay/mrvscriptcast.h"
#include "screenplay/mrvscriptpagination.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>

namespace {

using Element = MRVFountainElement;

constexpr struct
{
    MRVSceneHeading::Setting setting;
    const char *name;
} settings[] = {{MRVSceneHeading::UnknownSetting, ""},
                {MRVSceneHeading::Interior, "INT"},
                {MRVSceneHeading::Exterior, "EXT"},
                {MRVSceneHeading::InteriorExterior, "INT/EXT"}};

const QRegularExpression &timeWord()
{
    static const QRegularExpression expression(
        QStringLiteral(
            "\\b(?:day|night|morning|afternoon|evening|dawn|dusk|noon|midday|midnight|sunrise"
            "|sunset|sundown|twilight|daybreak|later|earlier|continuous|same|magic hour|tag|nacht"
            "|morgen|vormittag|mittag|nachmittag|abend|mitternacht|d\u00E4mmerung|sp\u00E4ter|jour"
            "|nuit|matin|midi|apr\u00E8s-midi|soir|minuit|aube|cr\u00E9puscule|plus tard|d\u00EDa"
            "|noche|ma\u00F1ana|tarde|mediod\u00EDa|medianoche|amanecer|atardecer|anochecer"
            "|m\u00E1s tarde)\\b"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    return expression;
}

MRVSceneHeading::Setting settingOf(const QString &start)
{
    const bool isInterior = start.startsWith(u'I', Qt::CaseInsensitive)
        || start.contains(QLatin1String("/I"), Qt::CaseInsensitive);
    const bool isExterior = start.startsWith(u'E', Qt::CaseInsensitive)
        || start.contains(QLatin1String("/E"), Qt::CaseInsensitive);
    return isInterior && isExterior ? MRVSceneHeading::InteriorExterior
        : isInterior                ? MRVSceneHeading::Interior
                                    : MRVSceneHeading::Exterior;
}

QString csvLine(QStringList cells)
{
    for (QString &cell : cells) {
        if (cell.contains(u',') || cell.contains(u'"') || cell.contains(u'\n')) {
            cell = u'"' + cell.replace(u'"', QLatin1String("\"\"")) + u'"';
        }
    }
    return cells.join(u',') + QLatin1String("\r\n");
}

} // namespace

QString MRVSceneHeading::name(Setting setting)
{
    for (const auto &row : settings) {
        if (row.setting == setting) {
            return QLatin1String(row.name);
        }
    }
    return QString();
}

MRVSceneHeading MRVSceneHeading::of(const QString &heading)
{
    static const QRegularExpression start(
        QStringLiteral("^(?:INT\\.?/EXT|EXT\\.?/INT|I/E|E/I|INT|EXT|EST)(?:[. ]+|$)"),
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression dash(QStringLiteral(" +-+ +|--+|\\s*[\u2013\u2014]\\s*"));
    MRVSceneHeading result;
    const QString text = heading.simplified();
    const QRegularExpressionMatch match = start.match(text);
    if (match.hasMatch()) {
        result.setting = settingOf(match.captured());
    }
    QString rest = text.mid(match.capturedLength());
    int placeEnd = rest.size();
    int timeStart = rest.size();
    for (auto it = dash.globalMatch(rest); it.hasNext();) {
        const QRegularExpressionMatch found = it.next();
        const int next = it.hasNext() ? it.peekNext().capturedStart() : rest.size();
        if (rest.mid(found.capturedEnd(), next - found.capturedEnd()).contains(timeWord())) {
            placeEnd = found.capturedStart();
            timeStart = found.capturedEnd();
        }
    }
    result.place = rest.left(placeEnd).trimmed();
    result.time = rest.mid(timeStart).trimmed();
    return result;
}

QVector<MRVScriptScene> MRVScriptScene::of(const MRVFountainScript &script)
{
    const MRVScriptCast cast(script);
    QVector<MRVScriptScene> scenes;
    QSet<QString> present;
    for (int i = 0; i < script.elements.size(); ++i) {
        const Element &element = script.elements.at(i);
        if (element.kind == Element::SceneHeading) {
            const QString heading = element.text().simplified();
            scenes.append(
                {i, i, heading, element.sceneNumber, MRVSceneHeading::of(heading), {}, 0, 0});
            present.clear();
        } else if (element.kind == Element::Character && !scenes.isEmpty()) {
            const QStringList names = cast.namesIn(element.text());
            for (const QString &name : names) {
                if (!present.contains(name)) {
                    present.insert(name);
                    scenes.last().characters.append(name);
                }
            }
        }
        if (!scenes.isEmpty()) {
            scenes.last().end = i + 1;
        }
    }
    return scenes;
}

QVector<MRVScriptScene> MRVScriptScene::of(const MRVFountainScript &script,
                                           const MRVScriptPagination &pagination)
{
    QVector<MRVScriptScene> scenes = of(script);
    for (MRVScriptScene &scene : scenes) {
        scene.page = pagination.pageOf(scene.first);
        scene.eighths = pagination.eighths(scene.first, scene.end);
    }
    return scenes;
}

QJsonObject MRVScriptScene::toJson() const
{
    return {{QStringLiteral("number"), number},
            {QStringLiteral("heading"), heading},
            {QStringLiteral("setting"), MRVSceneHeading::name(parts.setting)},
            {QStringLiteral("place"), parts.place},
            {QStringLiteral("time"), parts.time},
            {QStringLiteral("page"), page},
            {QStringLiteral("eighths"), eighths},
            {QStringLiteral("characters"), QJsonArray::fromStringList(characters)}};
}

QByteArray MRVScriptScene::toCsv(const QVector<MRVScriptScene> &scenes)
{
    QString text = QStringLiteral("number,heading,setting,place,time,page,length,characters\r\n");
    for (const MRVScriptScene &scene : scenes) {
        text += csvLine({scene.number, scene.heading, MRVSceneHeading::name(scene.parts.setting),
                         scene.parts.place, scene.parts.time, QString::number(scene.page),
                         MRVScriptPagination::eighthsText(scene.eighths),
                         scene.characters.join(QLatin1String(", "))});
    }
    return text.toUtf8();
}
