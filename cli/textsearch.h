#pragma once

#include "documentinput.h"
#include "output.h"

#include "search/mrvtextfinder.h"
#include "search/mrvtextreplacer.h"
#include "text/mrvtextrange.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

class QCommandLineParser;
class QTextDocument;

/** What a subcommand looks for, as its arguments say. */
class TextSearch
{
public:
    MRVTextQuery query;

    /** Adds the options that say how to search, and how to read the inputs. */
    static void addOptions(QCommandLineParser *parser);
    /** Takes up these options. @return false, with a text, when they are wrong. */
    bool readOptions(const QCommandLineParser &parser, QString *error);
};

/** Adds the options that say how to read inputs. */
void addInputOptions(QCommandLineParser *parser);
/**
 * Takes up these options, and looks at the list of inputs. Pictures are left alone.
 * @return false, with a text, when they are wrong.
 */
bool readInputOptions(const QCommandLineParser &parser, const QStringList &inputs,
                      InputOptions *options, QString *error);

/**
 * Where a range lies, for programs: the paragraph and the column in it, from 1; the positions in
 * the document, from 0, the end not included; the text, with a line feed for each end of a line or
 * paragraph. All count UTF-16 units.
 */
QJsonObject toJson(const QString &path, QTextDocument *document, const MRVTextRange &range);
