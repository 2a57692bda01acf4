#include "manuscript/mrvmanuscript.h"

#include <QFileInfo>
#include <QTextCodec>

namespace {

constexpr struct
{
    MRVManuscript::Format format;
    const char *name;
    const char *suffixes;
} formats[] = {
    {MRVManuscript::Html, "html", "html htm xhtml"},
    {MRVManuscript::Markdown, "markdown", "md markdown mkd mdown"},
    {MRVManuscript::PlainText, "text", "txt text fountain"},
};

} // namespace

QString MRVManuscript::sourceText() const
{
    const QTextCodec *codec = QTextCodec::codecForName(encoding);
    QTextCodec::ConverterState state;
    return codec ? codec->toUnicode(bytes.constData(), bytes.size(), &state) : QString();
}

QStringList MRVManuscript::formatNames()
{
    QStringList names;
    for (const auto &row : formats) {
        names.append(QLatin1String(row.name));
    }
    return names;
}

MRVManuscript::Format MRVManuscript::formatNamed(const QString &name)
{
    for (const auto &row : formats) {
        if (name == QLatin1String(row.name)) {
            return row.format;
        }
    }
    return Unknown;
}

MRVManuscript::Format MRVManuscript::formatOfFile(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix.isEmpty()) {
        return PlainText;
    }
    for (const auto &row : formats) {
        if (QString::fromLatin1(row.suffixes).split(u' ').contains(suffix)) {
            return row.format;
        }
    }
    return Unknown;
}
