#include "shortcuts/mrvshortcut.h"

QMetaEnum MRVShortcut::metaEnumId()
{
    static const QMetaEnum metaEnum = QMetaEnum::fromType<Id>();
    return metaEnum;
}

MRVShortcut::Id MRVShortcut::keyToValue(const char *key)
{
    return Id(metaEnumId().keyToValue(key));
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
