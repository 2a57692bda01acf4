#pragma once

#include <QFile>
#include <QtTest>

/** "⟨3×ab⟩" is "ababab", of which each may be repeated; "№" counts from 0 and "-№" down to 0. */
inline QString withRepeats(QString text)
{
    static const QRegularExpression innermost("⟨(\\d+)×([^⟨⟩]*)⟩");
    for (auto match = innermost.match(text); match.hasMatch(); match = innermost.match(text)) {
        const QString one = match.captured(2);
        const int count = match.captured(1).toInt();
        QString all;
        for (int i = 0; i < count; ++i) {
            const QString down = QString(one).replace("-№", QString::number(count - 1 - i));
            all += QString(down).replace("№", QString::number(i));
        }
        text.replace(match.capturedStart(), match.capturedLength(), all);
    }
    return text;
}

/**
 * The rows of a file of tests/data, separated into cells by tabs. "\n", "\r", "\t", "\\" and "\xe9"
 * mean what they mean in C++, the last always with two digits and as a character; withRepeats()
 * tells of repeated parts. Empty lines and lines that start with '#' are left out.
 */
inline QVector<QStringList> rowsOf(const QString &file)
{
    const QHash<QChar, QChar> meanings{{'n', '\n'}, {'r', '\r'}, {'t', '\t'}};
    QFile data(MRV_SOURCE_DIR "/tests/data/" + file);
    if (!data.open(QIODevice::ReadOnly)) {
        qFatal("%s cannot be read", qPrintable(data.fileName()));
    }
    QVector<QStringList> rows;
    for (const QString &line : QString::fromUtf8(data.readAll()).split('\n')) {
        if (line.isEmpty() || line.startsWith('#')) {
            continue;
        }
        QStringList cells = line.split('\t');
        for (QString &cell : cells) {
            for (int at = 0; (at = cell.indexOf('\\', at)) >= 0 && at + 1 < cell.size(); ++at) {
                const bool isNumber = cell.at(at + 1) == 'x';
                const QChar meant = isNumber ? QChar(cell.mid(at + 2, 2).toInt(nullptr, 16))
                                             : meanings.value(cell.at(at + 1), cell.at(at + 1));
                cell.replace(at, isNumber ? 4 : 2, meant);
            }
            cell = withRepeats(cell);
        }
        rows << cells;
    }
    return rows;
}

/** A text of the current row of a test function's data. */
inline QString cell(const char *column)
{
    return *static_cast<QString *>(QTest::qData(column, QMetaType::QString));
}

/**
 * Fills the data of a test function with the rows of @p file, whose columns are texts; missing
 * cells are empty. The columns have the names of the comment with tabs before the rows, unless
 * others are given. A row is named by its first two cells.
 */
inline void addRows(const QString &file, QStringList columns = {})
{
    if (columns.isEmpty()) {
        QFile data(MRV_SOURCE_DIR "/tests/data/" + file);
        data.open(QIODevice::ReadOnly);
        static const QRegularExpression header("^# (.*\\t.*)$",
                                               QRegularExpression::MultilineOption);
        columns = header.match(QString::fromUtf8(data.readAll())).captured(1).split('\t');
    }
    static QSet<QByteArray> names; // QtTest keeps pointers to them
    for (const QString &column : qAsConst(columns)) {
        QTest::addColumn<QString>(*names.insert(column.toLatin1()));
    }
    for (const QStringList &row : rowsOf(file)) {
        const QString name = QStringList(row.mid(0, 2)).join(' ').left(100).simplified();
        QTestData &data = QTest::newRow(qPrintable(name));
        for (int i = 0; i < columns.size(); ++i) {
            data << row.value(i);
        }
    }
}

/** Fills the data of a test function with rows of a name and "steps", the further cells. */
inline void addSteps(const QString &file)
{
    QTest::addColumn<QStringList>("steps");
    for (const QStringList &row : rowsOf(file)) {
        QTest::newRow(qPrintable(row[0])) << QStringList(row.mid(1));
    }
}

/** Checks steps of the form "call → result" one after the other. */
template<typename ResultOf>
void checkSteps(const QStringList &steps, ResultOf resultOf)
{
    for (const QString &step : steps) {
        const QString call = step.section(" → ", 0, 0);
        QCOMPARE(call + " → " + resultOf(call), step);
    }
}
