#include "fileformats/mrvenginechoice.h"

#include <QJsonArray>

#include <iterator>

namespace {

constexpr struct
{
    MRVEngineChoice::Reason reason;
    const char *name;
    const char *text; // %1: the stored engine
} reasons[] = {
    {MRVEngineChoice::NeitherSideRtf, "neitherSideRtf",
     QT_TRANSLATE_NOOP("MRVEngineChoice", "neither side is RTF, so no choice is kept")},
    {MRVEngineChoice::Default, "default",
     QT_TRANSLATE_NOOP("MRVEngineChoice", "it is the default, as nothing is stored")},
    {MRVEngineChoice::Stored, "stored",
     QT_TRANSLATE_NOOP("MRVEngineChoice", "it is the stored choice")},
    {MRVEngineChoice::Unlisted, "unlisted",
     QT_TRANSLATE_NOOP("MRVEngineChoice", "the stored choices do not include this format")},
    {MRVEngineChoice::Repaired, "repaired",
     QT_TRANSLATE_NOOP("MRVEngineChoice",
                       "the stored choice, %1, needs an application that is not available here")},
};

constexpr bool reasonsAreInOrder()
{
    for (int i = 0; i < int(std::size(reasons)); ++i) {
        if (reasons[i].reason != i) {
            return false;
        }
    }
    return std::size(reasons) == MRVEngineChoice::Repaired + 1;
}
static_assert(reasonsAreInOrder());

} // namespace

QStringList MRVEngineChoice::supportedNames() const
{
    QStringList names;
    for (MRVImportExport::Engine one : supported) {
        names.append(MRVImportExport::toString(one));
    }
    return names;
}

QString MRVEngineChoice::title() const
{
    return QStringLiteral("%1 -> %2").arg(MRVFormat::name(from), MRVFormat::name(to));
}

QString MRVEngineChoice::objection() const
{
    if (!canImport) {
        return tr("%1 cannot be imported").arg(MRVFormat::name(from));
    }
    return canExport ? QString() : tr("%1 cannot be exported").arg(MRVFormat::name(to));
}

QString MRVEngineChoice::objectionTo(const QString &name) const
{
    if (!isOffered()) {
        return objection();
    }
    if (reason == NeitherSideRtf) {
        return title() + QLatin1String(": ") + reasonText();
    }
    if (!supported.contains(MRVImportExport::engineNamed(name))) {
        return tr("%1: %2 cannot do that here; possible: %3")
            .arg(title(), name, supportedNames().join(QLatin1String(", ")));
    }
    // The stored form names formats by their suffixes.
    const MRVFormat::Format other = from == MRVFormat::RTF ? to : from;
    const QString otherName = MRVFormat::name(other);
    return MRVFormat::format(otherName) == other
        ? QString()
        : tr("choices for %1 are not kept: its name is not a suffix").arg(otherName);
}

QJsonObject MRVEngineChoice::toJson() const
{
    QJsonObject object{
        {QStringLiteral("from"), MRVFormat::name(from)},
        {QStringLiteral("to"), MRVFormat::name(to)},
        {QStringLiteral("engine"), MRVImportExport::toString(engine)},
        {QStringLiteral("reason"), QLatin1String(toString(reason))},
        {QStringLiteral("supported"), QJsonArray::fromStringList(supportedNames())},
        {QStringLiteral("offered"), isOffered()},
    };
    if (stored != MRVImportExport::UnknownEngine) {
        object.insert(QStringLiteral("stored"), MRVImportExport::toString(stored));
    }
    return object;
}

QString MRVEngineChoice::reasonText() const
{
    const QString text = tr(reasons[reason].text);
    return reason == Repaired ? text.arg(MRVImportExport::toString(stored)) : text;
}

const char *MRVEngineChoice::toString(Reason reason)
{
    return reasons[reason].name;
}
