#include "scriptmode/mrvscriptmode.h"

#include "core/mrvfilewriter.h"
#include "core/mrvxmltext.h"
#include "scriptmode/mrvscriptmodefile_p.h"
#include "util/mrvclosestmatch.h"
#include "util/mrvfailure.h"
#include "util/mrvnames.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QLoggingCategory>
#include <QSet>
#include <QStandardPaths>
#include <QTextBlock>
#include <QXmlStreamWriter>

#include <algorithm>
#include <cstring>

namespace {

Q_LOGGING_CATEGORY(lcScript, "mrv.script")

constexpr char SystemFolder[] = ":/ScriptFormat/ScriptFormats";
constexpr char UserFolder[] = "/ScriptFormats";
constexpr char FileSuffix[] = ".xml";

// Empty where it cannot be made.
QString userFolder()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation)
        + QLatin1String(UserFolder);
    return QDir().mkpath(folder) ? folder : QString();
}

void writeText(QXmlStreamWriter *xml, const QString &text)
{
    // A literal carriage return would be read back as a line feed.
    const QStringList lines = mrvXmlText(text).split(u'\r');
    for (int i = 0; i < lines.size(); ++i) {
        if (i > 0) {
            xml->writeEntityReference(QStringLiteral("#13"));
        }
        xml->writeCharacters(lines.at(i));
    }
}

void writeTextElement(QXmlStreamWriter *xml, const char *tag, const QString &text)
{
    xml->writeStartElement(QLatin1String(tag));
    writeText(xml, text);
    xml->writeEndElement();
}

void writeFont(QXmlStreamWriter *xml, const MRVScriptElement &element)
{
    xml->writeStartElement(QLatin1String(FontTag));
    xml->writeAttribute(QLatin1String(NameTag), mrvXmlText(scriptFontFamily(element)));
    xml->writeAttribute(QLatin1String(SizeAttribute), scriptFontSize(element));
    xml->writeEndElement();
}

void writeCompletions(QXmlStreamWriter *xml, const MRVCompletionList &list)
{
    xml->writeStartElement(QLatin1String(CompletionListTag));
    const QList<MRVCompletion> completions = list.completions();
    for (const MRVCompletion &completion : completions) {
        xml->writeStartElement(QLatin1String(CompletionItemTag));
        xml->writeAttribute(QLatin1String(NewLineAfterAttribute),
                            QLatin1String(completion.newLineAfter ? YesWord : NoWord));
        writeText(xml, completion.text);
        xml->writeEndElement();
    }
    xml->writeEndElement();
}

void writeField(QXmlStreamWriter *xml, const ScriptField &field, const MRVScriptElement &element,
                MRVUnit::Unit units)
{
    if (field.kind == ScriptFieldKind::Font) {
        writeFont(xml, element);
    } else if (field.kind == ScriptFieldKind::Completions) {
        writeCompletions(xml, element.completions());
    } else if (field.text) {
        const QString text = field.text(element, units);
        if (!text.isNull()) {
            writeTextElement(xml, field.tag, text);
        }
    }
}

void writeElement(QXmlStreamWriter *xml, const MRVScriptElement &element, MRVUnit::Unit units)
{
    xml->writeStartElement(QLatin1String(ElementItemTag));
    const char *group = nullptr;
    for (const ScriptField &field : ScriptFields()) {
        if (field.group != group) {
            if (group) {
                xml->writeEndElement();
            }
            if (field.group) {
                xml->writeStartElement(QLatin1String(field.group));
            }
            group = field.group;
        }
        writeField(xml, field, element, units);
    }
    if (group) {
        xml->writeEndElement();
    }
    xml->writeEndElement();
}

// Not more than a byte beyond what a mode may have: what has no size, such as a device, may have no
// end, either.
bool readBounded(const QString &path, QByteArray *bytes, MRVErrorSink reason)
{
    constexpr int PieceSize = 64 * 1024;
    // Opening a folder succeeds.
    if (QFileInfo(path).isDir()) {
        return MRV::fail(reason, MRVScriptMode::tr("it is a folder"));
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return MRV::fail(reason, MRVError::ofDevice(file));
    }
    QByteArray piece;
    do {
        piece = file.read(qMin(PieceSize, MRVScriptMode::MaxFileSize + 1 - bytes->size()));
        bytes->append(piece);
    } while (!piece.isEmpty());
    return file.error() == QFileDevice::NoError || MRV::fail(reason, MRVError::ofDevice(file));
}

const char *unitWord(MRVUnit::Unit units)
{
    for (const ScriptWord &row : ScriptUnitWords) {
        if (row.value == units) {
            return row.word;
        }
    }
    return ScriptUnitWords[0].word;
}

} // namespace

MRVScriptMode::MRVScriptMode()
    : m_name(QStringLiteral("Screenplay"))
{
}

void MRVScriptMode::setUnits(MRVUnit::Unit units)
{
    const bool known = units == MRVUnit::Inch || units == MRVUnit::Centimeter;
    m_units = known ? units : MRVUnit::Point;
}

int MRVScriptMode::indexOf(const QString &title) const
{
    for (int i = 0; i < m_elements.size(); ++i) {
        if (m_elements.at(i).title() == title) {
            return i;
        }
    }
    return -1;
}

int MRVScriptMode::indexOf(const QTextBlock &block) const
{
    const QTextBlockFormat format = block.blockFormat();
    for (int i = 0; i < m_elements.size(); ++i) {
        if (MRVScriptElement::equal(format, m_elements.at(i).blockFormat())) {
            return i;
        }
    }
    return -1;
}

bool MRVScriptMode::load(const QString &path, MRVErrorSink error, QStringList *remarks)
{
    MRVError reason;
    QByteArray xml;
    if (!readBounded(path, &xml, &reason)) {
        return MRV::fail(error, reason.kind,
                         tr("Cannot read the file \"%1\": %2").arg(path, reason.text));
    }
    return fromXml(xml, &reason, remarks)
        || MRV::fail(error, reason.kind,
                     tr("\"%1\" is not a script mode: %2").arg(path, reason.text));
}

bool MRVScriptMode::loadNamed(const QString &nameOrPath, MRVErrorSink error)
{
    const QMap<QString, MRVScriptMode> factory = systemModes();
    for (const MRVScriptMode &mode : factory) {
        if (mode.name().compare(nameOrPath, Qt::CaseInsensitive) == 0) {
            *this = mode;
            return true;
        }
    }
    if (QFileInfo::exists(nameOrPath)) {
        return load(nameOrPath, error);
    }
    const QString meant = MRV::closestMatch(nameOrPath, factory.keys());
    return MRV::fail(error, MRVErrorKind::NotFound,
                     meant.isNull()
                         ? tr("'%1' is neither a factory mode nor a file").arg(nameOrPath)
                         : tr("'%1' is neither a factory mode nor a file; did you mean '%2'?")
                               .arg(nameOrPath, meant));
}

QByteArray MRVScriptMode::toXml() const
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(QLatin1String(MorvaneScriptFormatTag));
    xml.writeAttribute(QLatin1String(VersionAttribute), QLatin1String(FileVersion));
    writeTextElement(&xml, NameTag, m_name);
    writeTextElement(&xml, UnitsTag, QLatin1String(unitWord(m_units)));
    xml.writeStartElement(QLatin1String(ScriptElementsTag));
    for (const MRVScriptElement &element : m_elements) {
        writeElement(&xml, element, m_units);
    }
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeEndDocument();
    return bytes;
}

bool MRVScriptMode::save(const QString &path, MRVErrorSink error) const
{
    // A mode that could not be read back is not written.
    const QByteArray xml = m_elements.size() <= MaxElements ? toXml() : QByteArray();
    MRVTextFault fault;
    if (xml.isEmpty() || xml.size() > MaxFileSize
        || !MRVXmlReader::keepsLimits(QString::fromUtf8(xml), ScriptModeLimits, &fault)) {
        return MRV::fail(
            error, MRVErrorKind::TooLarge,
            tr("Cannot write the file \"%1\": the script mode is too large").arg(path));
    }
    return MRVFileWriter::write(path, xml, error);
}

void MRVScriptMode::loadFactoryDefaults()
{
    const bool ok = fromXml(
        QByteArray::fromRawData(MrvDefaultScriptMode, int(std::strlen(MrvDefaultScriptMode))));
    Q_ASSERT(ok);
    Q_UNUSED(ok)
}

QMap<QString, MRVScriptMode> MRVScriptMode::systemModes()
{
    return mrv_loadPath(QLatin1String(SystemFolder));
}

QMap<QString, MRVScriptMode> MRVScriptMode::userModes()
{
    const QString folder = userFolder();
    return folder.isEmpty() ? QMap<QString, MRVScriptMode>() : mrv_loadPath(folder);
}

bool MRVScriptMode::addToUserModes(const QString &name, MRVScriptMode &mode)
{
    const QString path = userModePath(name);
    return !path.isEmpty() && mode.save(path);
}

QString MRVScriptMode::userModePath(const QString &name)
{
    const QString file = MRV::cleanFileName(name);
    const QString folder = file.isEmpty() ? QString() : userFolder();
    return folder.isEmpty() ? QString()
                            : folder + QLatin1Char('/') + file + QLatin1String(FileSuffix);
}

void MRVScriptMode::makeElementsUnique()
{
    QSet<QString> used;
    for (const MRVScriptElement &element : qAsConst(m_elements)) {
        used.insert(element.title());
    }
    QHash<QString, int> lastNumbers; // of titles that were seen; 0 for the first of them
    for (MRVScriptElement &element : m_elements) {
        const QString series = element.title();
        const auto last = lastNumbers.find(series);
        if (last == lastNumbers.end()) {
            lastNumbers.insert(series, 0);
            continue;
        }
        QString title;
        do {
            title = series + QLatin1Char('-') + QString::number(++*last);
        } while (used.contains(title));
        used.insert(title);
        element.setTitle(title);
    }
}

MRVScriptMode MRVScriptMode::forEditor() const
{
    MRVScriptMode mode = *this;
    for (MRVScriptElement &element : mode.m_elements) {
        element.setBlockFormat(MRVScriptElement::withMargins(element.blockFormat()));
    }
    return mode;
}

QStringList MRVScriptMode::faults() const
{
    static constexpr struct
    {
        MRVScriptElement::Action action;
        const char *text;
    } actions[] = {{MRVScriptElement::ReturnAction,
                    QT_TR_NOOP("'%1': Return goes to '%2', which is no element")},
                   {MRVScriptElement::TabOnEmptyAction,
                    QT_TR_NOOP("'%1': Tab in an empty line goes to '%2', which is no element")},
                   {MRVScriptElement::TabAfterTypingAction,
                    QT_TR_NOOP("'%1': Tab goes to '%2', which is no element")}};
    QStringList faults;
    if (m_elements.isEmpty()) {
        faults.append(tr("the mode has no elements"));
    }
    for (int i = 0; i < m_elements.size(); ++i) {
        const MRVScriptElement &element = m_elements.at(i);
        const QString title = element.title();
        if (title.isEmpty()) {
            faults.append(tr("element %1 has no title").arg(i + 1));
        } else if (indexOf(title) < i) {
            faults.append(tr("two elements are called '%1'").arg(title));
        }
        for (const auto &row : actions) {
            const QString next = element.actionElement(row.action);
            if (!next.isEmpty() && indexOf(next) < 0) {
                faults.append(tr(row.text).arg(title, next));
            }
        }
        const auto looksSame = [&](const MRVScriptElement &other) {
            return MRVScriptElement::equal(other.blockFormat(), element.blockFormat());
        };
        const auto end = m_elements.cbegin() + i;
        const auto same = std::find_if(m_elements.cbegin(), end, looksSame);
        if (same != end) {
            faults.append(
                tr("the paragraphs of '%1' look like those of '%2'").arg(title, same->title()));
        }
    }
    return faults;
}

double MRVScriptMode::toPoints(double length) const
{
    return scriptToPoints(m_units, length);
}

double MRVScriptMode::fromPoints(double points) const
{
    return MRVUnit::fromPoint(m_units, points);
}

bool MRVScriptMode::operator==(const MRVScriptMode &other) const
{
    return m_name == other.m_name && m_units == other.m_units && m_elements == other.m_elements;
}

QMap<QString, MRVScriptMode> mrv_loadPath(const QString &folder)
{
    QMap<QString, MRVScriptMode> modes;
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo &file : files) {
        MRVScriptMode mode;
        QString error;
        QStringList remarks;
        if (mode.load(file.filePath(), &error, &remarks)) {
            modes.insert(mode.name(), mode);
        } else {
            qCWarning(lcScript, "%s", qUtf8Printable(error));
        }
        for (const QString &remark : qAsConst(remarks)) {
            qCInfo(lcScript, "\"%s\": %s", qUtf8Printable(file.filePath()), qUtf8Printable(remark));
        }
    }
    return modes;
}

QString addBrackets(const QString &text)
{
    return QLatin1Char('(') + text + QLatin1Char(')');
}

QString cleanBrackets(const QString &text)
{
    const bool enclosed = text.size() >= 2 && text.startsWith(u'(') && text.endsWith(u')');
    return enclosed ? text.mid(1, text.size() - 2) : QString();
}
