#include "shortcuts/mrvshortcut.h"

#include "util/mrvclosestmatch.h"
#include "util/mrvfailure.h"

#include <QStringList>

QMetaEnum MRVShortcut::metaEnumId()
{
    static const QMetaEnum metaEnum = QMetaEnum::fromType<Id>();
    return metaEnum;
}

MRVShortcut::Id MRVShortcut::keyToValue(const char *key)
{
    return Id(metaEnumId().keyToValue(key));
}

MRVShortcut::Id MRVShortcut::idNamed(const QString &name, MRVErrorSink error)
{
    QStringList names;
    for (int i = NoId + 1; i <= FullScreenGoTo; ++i) {
        names.append(QString::fromLatin1(valueToKey(Id(i))));
        if (names.constLast() == name) {
            return Id(i);
        }
    }
    const QString meant = MRV::closestMatch(name, names);
    MRV::fail(error, MRVErrorKind::NotFound,
              meant.isNull() ? tr("unknown command '%1'").arg(name)
                             : tr("unknown command '%1'; did you mean '%2'?").arg(name, meant));
    return NoId;
}

const char *MRVShortcut::valueToKey(Id id)
{
    return metaEnumId().valueToKey(id);
}

bool MRVShortcut::isValid(Id id)
{
    return row(id) != nullptr;
}

QString MRVShortcut::group(Id id)
{
    const Row *found = row(id);
    return found ? tr(found->group) : QString();
}

QString MRVShortcut::label(Id id)
{
    const auto custom = labels().constFind(id);
    return custom != labels().constEnd() ? *custom : QString::fromLatin1(valueToKey(id));
}

void MRVShortcut::setLabel(Id id, const QString &text)
{
    labels().insert(id, text);
}

QHash<MRVShortcut::Id, QString> MRVShortcut::customLabels()
{
    return labels();
}

QHash<MRVShortcut::Id, QString> &MRVShortcut::labels()
{
    static QHash<Id, QString> labels = [] {
        QHash<Id, QString> start;
        for (const Id id :
             {PreviousDocument, NextDocument, EnclosingGroup, EditorSelection, FullScreenGoTo}) {
            start.insert(id, tr(row(id)->text));
        }
        return start;
    }();
    return labels;
}
