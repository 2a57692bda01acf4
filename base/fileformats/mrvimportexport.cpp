#include "fileformats/mrvimportexport.h"

#include <QCoreApplication>

#include <iterator>

namespace {

template<typename Enum>
struct Row
{
    Enum value;
    const char *stored;
    const char *display; // null: not shown to users
};

// clang-format off
constexpr Row<MRVImportExport::Engine> engines[] = {
    {MRVImportExport::UnknownEngine,           "UnknownEngine",           nullptr},
    {MRVImportExport::Doc2AnyAutoEngine,       "Doc2AnyAutoEngine",       QT_TRANSLATE_NOOP("QObject", "Doc2Any")},
    {MRVImportExport::Doc2AnyPreferMsOffice,   "Doc2AnyPreferMsOffice",   nullptr},
    {MRVImportExport::Doc2AnyPreferOpenOffice, "Doc2AnyPreferOpenOffice", nullptr},
    {MRVImportExport::Doc2AnyInternalEngine,   "Doc2AnyInternalEngine",   QT_TRANSLATE_NOOP("QObject", "Doc2Any")},
    {MRVImportExport::SubSystemsEngine,        "SubSystemsEngine",        QT_TRANSLATE_NOOP("QObject", "Morvane")},
    {MRVImportExport::QtEngine,                "QtEngine",                QT_TRANSLATE_NOOP("QObject", "Morvane")},
    {MRVImportExport::RtfBasedDoc,             "RtfBasedDoc",             QT_TRANSLATE_NOOP("QObject", "RTF-Based")},
};

constexpr Row<MRVImportExport::UrlImportType> urlImportTypes[] = {
    {MRVImportExport::ImportUndefined,               "ImportUndefined",               nullptr},
    {MRVImportExport::ImportAsPdfWithDoc2AnyWebKit,  "ImportAsPdfWithDoc2AnyWebKit",  QT_TRANSLATE_NOOP("QObject", "PDF Document via WebKit")},
    {MRVImportExport::ImportAsPdfWithDoc2AnyOffice,  "ImportAsPdfWithDoc2AnyOffice",  QT_TRANSLATE_NOOP("QObject", "PDF Document via Microsoft Office")},
    {MRVImportExport::ImportAsPdfWithDoc2AnyDefault, "ImportAsPdfWithDoc2AnyDefault", QT_TRANSLATE_NOOP("QObject", "PDF Document via Internet Explorer")},
    {MRVImportExport::ImportAsHtml,                  "ImportAsHtml",                  nullptr},
    {MRVImportExport::ImportAsPlainText,             "ImportAsPlainText",             QT_TRANSLATE_NOOP("QObject", "Plain Text")},
    {MRVImportExport::ImportAsImage,                 "ImportAsImage",                 nullptr},
    {MRVImportExport::ImportAsDynamicWeb,            "ImportAsDynamicWeb",            nullptr},
    {MRVImportExport::ImportAsMht,                   "ImportAsMht",                   QT_TRANSLATE_NOOP("QObject", "Webpage Complete (MHT)")},
};
// clang-format on

constexpr char FormerPdfType[] = "ImportAsPdf";

template<typename Enum, std::size_t Size>
constexpr bool rowsCarryTheirNumbers(const Row<Enum> (&table)[Size], Enum last)
{
    for (std::size_t i = 0; i < Size; ++i) {
        if (table[i].value != int(i)) {
            return false;
        }
    }
    return table[Size - 1].value == last;
}

static_assert(rowsCarryTheirNumbers(engines, MRVImportExport::RtfBasedDoc));
static_assert(rowsCarryTheirNumbers(urlImportTypes, MRVImportExport::ImportAsMht));

template<typename Enum, std::size_t Size>
const char *storedName(const Row<Enum> (&table)[Size], Enum value)
{
    return value >= 0 && value < int(Size) ? table[value].stored : nullptr;
}

template<typename Enum, std::size_t Size, typename Text>
Enum fromStoredName(const Row<Enum> (&table)[Size], const Text &name)
{
    for (const Row<Enum> &row : table) {
        if (name == QLatin1String(row.stored)) {
            return row.value;
        }
    }
    return Enum(0);
}

template<typename Enum, std::size_t Size>
QMap<Enum, QString> displayNames(const Row<Enum> (&table)[Size])
{
    QMap<Enum, QString> names;
    for (const Row<Enum> &row : table) {
        if (row.display) {
            names.insert(row.value, QCoreApplication::translate("QObject", row.display));
        }
    }
    return names;
}

QStringList sorted(QStringList names)
{
    names.sort();
    return names;
}

} // namespace

QByteArray MRVImportExport::toByteArray(UrlImportType type)
{
    return QByteArray(storedName(urlImportTypes, type));
}

MRVImportExport::UrlImportType MRVImportExport::toUrlImportType(const QByteArray &name)
{
    if (name == FormerPdfType) {
        return ImportAsPdfWithDoc2AnyWebKit;
    }
    return fromStoredName(urlImportTypes, QLatin1String(name.constData(), name.size()));
}

bool MRVImportExport::isImportToPdfType(UrlImportType type)
{
    return type >= ImportAsPdfWithDoc2AnyWebKit && type <= ImportAsPdfWithDoc2AnyDefault;
}

bool MRVImportExport::isAllowedUrlImportType(AllowImport allow, UrlImportType type)
{
    switch (allow) {
    case AllowNothing:
        return false;
    case AllowAll:
        return true;
    case AllowPlainTextOnly:
        return type == ImportAsPlainText;
    case AllowTextOnly:
        return type == ImportAsHtml || type == ImportAsPlainText || type == ImportAsMht;
    }
    return false;
}

MRVImportExport::UrlImportType MRVImportExport::defaultUrlImportType(AllowImport allow)
{
    return allow == AllowPlainTextOnly || allow == AllowTextOnly ? ImportAsPlainText
                                                                 : ImportAsPdfWithDoc2AnyWebKit;
}

QMap<MRVImportExport::UrlImportType, QString> MRVImportExport::urlImportTypesDescr()
{
    QMap<UrlImportType, QString> names = displayNames(urlImportTypes);
    if (!hasMsWord()) {
        names.remove(ImportAsPdfWithDoc2AnyOffice);
    }
    return names;
}

QStringList MRVImportExport::urlImportTypesDescrSorted()
{
    return sorted(urlImportTypesDescr().values());
}

QMap<MRVImportExport::Engine, QString> MRVImportExport::engineTypes()
{
    QMap<Engine, QString> names;
    for (const auto &row : engines) {
        names.insert(row.value, QString::fromLatin1(row.stored));
    }
    return names;
}

QMap<MRVImportExport::Engine, QString> MRVImportExport::engineTypesDescr()
{
    return displayNames(engines);
}

QStringList MRVImportExport::engineTypesDescrSorted()
{
    return sorted(engineTypesDescr().values());
}

QString MRVImportExport::toString(Engine engine)
{
    return QString::fromLatin1(storedName(engines, engine));
}

MRVImportExport::Engine MRVImportExport::toEngine(const QString &name)
{
    return fromStoredName(engines, name);
}

MRVImportExport::Engine MRVImportExport::engineNamed(const QString &name)
{
    for (const auto &row : engines) {
        if (name.compare(QLatin1String(row.stored), Qt::CaseInsensitive) == 0) {
            return row.value;
        }
    }
    return UnknownEngine;
}

bool MRVImportExport::isDoc2AnyEngine(Engine engine)
{
    return engine >= Doc2AnyAutoEngine && engine <= Doc2AnyInternalEngine;
}

bool MRVImportExport::hasMsWord()
{
    return false;
}

bool MRVImportExport::hasOpenOffice()
{
    return false;
}

bool MRVImportExport::hasLibreOffice()
{
    return false;
}

bool MRVImportExport::hasIE()
{
    return false;
}

int msWordVersion()
{
    return 0;
}
