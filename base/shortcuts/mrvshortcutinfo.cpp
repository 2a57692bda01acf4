#include "shortcuts/mrvshortcutinfo.h"

bool MRVShortcutInfo::matchFilter(const QString &filter) const
{
    const QString wanted = filter.toLower();
    return text.toLower().contains(wanted)
        || sequence.toString(QKeySequence::NativeText).toLower().contains(wanted)
        || MRVShortcut::label(id).toLower().contains(wanted);
}
