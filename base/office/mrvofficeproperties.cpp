#include "office/mrvofficeproperties_p.h"

#include <QMap>
#include <QXmlStreamReader>

MRVOfficeProperties mrvOfficeProperties(const QByteArray &xml)
{
    QXmlStreamReader reader(xml);
    reader.setNamespaceProcessing(false);
    QMap<QString, QString> values; // by the names of elements; the first of each counts
    QString name;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement) {
            name = reader.qualifiedName().toString();
        } else if (token == QXmlStreamReader::Characters && !values.contains(name)) {
            values.insert(name, reader.text().toString().simplified());
        }
    }
    const auto first = [&values](const char *one, const char *other) {
        const QString value = values.value(QLatin1String(one));
        return value.isEmpty() ? values.value(QLatin1String(other)) : value;
    };
    MRVOfficeProperties properties;
    properties.title = first("dc:title", "");
    properties.language = first("dc:language", "");
    properties.description = first("dc:description", "");
    // An ODT also has who has changed it last.
    const QStringList authors = first("meta:initial-creator", "dc:creator").split(u';');
    for (const QString &author : authors) {
        if (!author.trimmed().isEmpty()) {
            properties.authors.append(author.trimmed());
        }
    }
    return properties;
}
