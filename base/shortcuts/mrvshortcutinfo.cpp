#include "shortcuts/mrvshortcutinfo.h"

bool MRVShortcutInfo::matchFilter(const QString &filter) const
{
    const QString wanted = filter.toLower();
    return text.toLower().contains(wanted)
        || sequence.toString(QKeySequence::NativeText).toLower().contains(wanted)
        || MRVShortcut::label(id).toLower().contains(wanted);
}

QString MRVShortcutInfo::keysText() const
{
    return sequence.isEmpty() ? tr("no key") : sequence.toString(QKeySequence::NativeText);
}

QJsonObject MRVShortcutInfo::toJson() const
{
    return {{QStringLiteral("command"), QString::fromLatin1(MRVShortcut::valueToKey(id))},
            {QStringLiteral("group"), MRVShortcut::group(id)},
            {QStringLiteral("text"), text},
            {QStringLiteral("keys"), sequence.toString(QKeySequence::PortableText)}};
}
