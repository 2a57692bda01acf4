#pragma once

#include <QMetaEnum>
#include <QTextBlock>
#include <QTextDocument>
#include <QtTest>

/// All properties of a format with the types of their values, for comparison.
inline QString propertyDump(const QTextFormat &format)
{
    QString text;
    QDebug(&text).nospace() << format.properties();
    return text;
}

/// A document run by run, for comparison: a line for each paragraph and one for each of its runs,
/// with text and all properties. Without the character format of the first paragraph itself, which
/// Qt leaves out of undo.
inline QStringList documentDump(const QTextDocument &document)
{
    QStringList lines;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QTextFormat own = block.blockNumber() ? block.charFormat() : QTextCharFormat();
        lines << "block " + propertyDump(block.blockFormat()) + propertyDump(own);
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            lines << it.fragment().text() + propertyDump(it.fragment().charFormat());
        }
    }
    return lines;
}

/// A property by its name in QTextFormat or by its number.
inline int propertyFrom(const QString &name)
{
    const int number = QMetaEnum::fromType<QTextFormat::Property>().keyToValue(name.toLatin1());
    return number < 0 ? name.toInt(nullptr, 0) : number;
}

/// A value as text and the types that it is converted to, one after the other: "red:QColor:QBrush".
/// Without text, it is the default value of the first type; "_" stands for a blank.
inline QVariant valueFrom(const QString &text)
{
    QStringList types = text.split(':');
    QVariant value = types.takeFirst().replace('_', ' ');
    if (text.startsWith(':')) {
        value = QVariant(QMetaType::type(types.takeFirst().toLatin1()), nullptr);
    }
    for (const QString &type : types) {
        value.convert(QMetaType::type(type.toLatin1()));
    }
    return value;
}

/// A format whose properties are given as text: "FontWeight=75:int 0x100003=true:bool".
template<typename Format>
Format formatFrom(const QString &text)
{
    Format format;
    for (const QString &part : text.split(' ', Qt::SkipEmptyParts)) {
        format.setProperty(propertyFrom(part.section('=', 0, 0)), valueFrom(part.section('=', 1)));
    }
    return format;
}

constexpr auto chars = formatFrom<QTextCharFormat>;
constexpr auto blocks = formatFrom<QTextBlockFormat>;
