#include "shortcuts/mrvshortcutcheck.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace {

constexpr int Ctrl = Qt::ControlModifier;
constexpr int Shift = Qt::ShiftModifier;
constexpr int Alt = Qt::AltModifier;
constexpr int Super = Qt::MetaModifier;
constexpr int AllModifiers = Ctrl | Shift | Alt | Super;
constexpr int Keypad = Qt::KeypadModifier;

struct KeyRange
{
    int modifiers; // Keypad does not matter where it is not one of them
    int optional; // modifiers that may come on top
    int first;
    int last;
};

// Keys that never reach an application with the default shortcuts of GNOME, KDE Plasma and Xfce in
// Debian 12.
constexpr KeyRange DesktopKeys[] = {
    {Super, AllModifiers, 0, 0x01ffffff}, // the desktop's own modifier
    {0, AllModifiers, Qt::Key_Super_L, Qt::Key_Super_R},
    {0, AllModifiers, Qt::Key_Meta, Qt::Key_Meta},
    {0, AllModifiers, Qt::Key_Print, Qt::Key_Print}, // pictures of the screen
    {0, AllModifiers, Qt::Key_SysReq, Qt::Key_SysReq}, // the kernel
    {Alt, Shift, Qt::Key_Tab, Qt::Key_Backtab}, // other windows
    {Alt, Shift, Qt::Key_Escape, Qt::Key_Escape},
    {Alt, Shift, Qt::Key_QuoteLeft, Qt::Key_QuoteLeft},
    {Alt, Shift, Qt::Key_F6, Qt::Key_F6}, // an application's windows
    {Alt | Shift, 0, Qt::Key_F12, Qt::Key_F12}, // effects
    {Alt, 0, Qt::Key_Insert, Qt::Key_Delete}, // more and fewer workspaces
    {Alt | Shift, 0, Qt::Key_PageUp, Qt::Key_PageDown}, // raising and lowering windows
    {Alt, 0, Qt::Key_Space, Qt::Key_Space}, // the window's menu, or the desktop's search
    {Alt, 0, Qt::Key_F1, Qt::Key_F12}, // starting programs, closing and moving windows
    {Ctrl, 0, Qt::Key_F1, Qt::Key_F12}, // workspaces
    {Ctrl, Shift, Qt::Key_Escape, Qt::Key_Escape},
    {Ctrl | Alt, Shift, Qt::Key_Home, Qt::Key_Down}, // workspaces
    {Ctrl | Alt | Keypad, 0, Qt::Key_1, Qt::Key_9},
    {Ctrl | Alt, Shift, Qt::Key_Tab, Qt::Key_Backtab},
    {Ctrl | Alt, 0, Qt::Key_F1, Qt::Key_F12}, // consoles
    {Ctrl | Alt, Shift, Qt::Key_Delete, Qt::Key_Delete}, // logging out
    {Ctrl | Alt, 0, Qt::Key_Backspace, Qt::Key_Backspace},
    {Ctrl | Alt, Shift, Qt::Key_Escape, Qt::Key_Escape},
    {Ctrl | Alt, 0, Qt::Key_A, Qt::Key_A}, // the window that asks for attention
    {Ctrl | Alt, 0, Qt::Key_D, Qt::Key_D}, // the bare desktop
    {Ctrl | Alt, 0, Qt::Key_F, Qt::Key_F}, // files
    {Ctrl | Alt, 0, Qt::Key_L, Qt::Key_L}, // locking the screen
    {Ctrl | Alt, 0, Qt::Key_T, Qt::Key_T}, // a terminal
    {Ctrl | Alt | Shift, 0, Qt::Key_R, Qt::Key_R}, // films of the screen
    {Ctrl, 0, Qt::Key_Space, Qt::Key_Space}, // switching input methods
    {Ctrl | Shift, 0, Qt::Key_U, Qt::Key_U}, // typing characters by number in IBus
};

// The codes of control keys begin here; those below are characters.
constexpr int FirstControlKey = Qt::Key_Escape;

constexpr KeyRange TypingKeys[] = {
    {0, Shift, 0, FirstControlKey - 1},
    {0, Shift, Qt::Key_Tab, Qt::Key_Backspace},
    {0, 0, Qt::Key_Return, Qt::Key_Enter}, // with Shift it may break lines
    {0, Shift, Qt::Key_Delete, Qt::Key_Delete}, // with Shift it cuts
    {0, Shift, Qt::Key_Home, Qt::Key_PageDown}, // with Shift it selects
    {Ctrl, Shift, Qt::Key_Home, Qt::Key_Down},
    {Ctrl, 0, Qt::Key_Backspace, Qt::Key_Backspace}, // words
    {Ctrl, 0, Qt::Key_Delete, Qt::Key_Delete},
    {Ctrl, 0, Qt::Key_Insert, Qt::Key_Insert}, // copying
    {Shift, 0, Qt::Key_Insert, Qt::Key_Insert}, // pasting
    {0, Shift, Qt::Key_Escape, Qt::Key_Escape}, // leaving what is open
};

constexpr const char *KindNames[] = {"same-key", "prefix", "desktop-key", "typing-key",
                                     "unnamed-key"};
static_assert(std::size(KindNames) == MRVShortcutCheck::UnnamedKey + 1);

// Shift and Tab is one key, for which there are several ways to write it.
int normalized(int key)
{
    if ((key & ~(AllModifiers | Keypad)) == Qt::Key_Backtab) {
        return (key & (AllModifiers | Keypad)) | Shift | Qt::Key_Tab;
    }
    return key;
}

// Without Keypad: the key of the same name on the keypad is taken for the same one.
std::vector<int> keysOf(const QKeySequence &sequence)
{
    std::vector<int> keys;
    for (int i = 0; i < sequence.count(); ++i) {
        keys.push_back(normalized(sequence[uint(i)]) & ~Keypad);
    }
    return keys;
}

template<std::size_t Size>
bool contains(const KeyRange (&ranges)[Size], int combination)
{
    const int modifiers = combination & (AllModifiers | Keypad);
    const int key = combination & ~(AllModifiers | Keypad);
    return std::any_of(std::begin(ranges), std::end(ranges), [&](const KeyRange &range) {
        return (modifiers & ~((range.optional | Keypad) & ~range.modifiers)) == range.modifiers
            && key >= range.first && key <= range.last;
    });
}

bool beginsWith(const std::vector<int> &keys, const std::vector<int> &start)
{
    return start.size() <= keys.size() && std::equal(start.begin(), start.end(), keys.begin());
}

} // namespace

QString MRVShortcutCheck::toString(Kind kind)
{
    return kind >= SameKey && kind <= UnnamedKey ? QString::fromLatin1(KindNames[kind]) : QString();
}

QList<MRVShortcutCheck::Conflict> MRVShortcutCheck::conflicts(const MRVShortcutScheme &scheme)
{
    struct Command
    {
        Id id;
        std::vector<int> keys;
    };
    std::vector<Command> commands;
    QList<Conflict> found;
    const QList<MRVShortcutInfo> infos = scheme.sortedShortcuts();
    for (const MRVShortcutInfo &info : infos) {
        if (!info.sequence.isEmpty()) {
            commands.push_back({info.id, keysOf(info.sequence)});
        }
    }
    for (auto one = commands.cbegin(); one != commands.cend(); ++one) {
        const QKeySequence sequence = scheme.shortcut(one->id);
        if (isDesktopKey(sequence)) {
            found.append({DesktopKey, one->id, MRVShortcut::NoId});
        }
        if (isTypingKey(sequence)) {
            found.append({TypingKey, one->id, MRVShortcut::NoId});
        }
        if (isUnnamedKey(sequence)) {
            found.append({UnnamedKey, one->id, MRVShortcut::NoId});
        }
        for (auto two = commands.cbegin(); two != commands.cend(); ++two) {
            if (one == two || !beginsWith(two->keys, one->keys)) {
                continue;
            }
            if (one->keys.size() < two->keys.size()) {
                found.append({Prefix, one->id, two->id});
            } else if (one->id < two->id) {
                found.append({SameKey, one->id, two->id});
            }
        }
    }
    return found;
}

QList<MRVShortcutCheck::Conflict> MRVShortcutCheck::conflicts(const MRVShortcutScheme &scheme,
                                                              Id id, const QKeySequence &sequence)
{
    MRVShortcutScheme changed = scheme;
    changed.setShortcut(id, {id, sequence, scheme.shortcutInfo(id).text});
    QList<Conflict> found = conflicts(changed);
    found.erase(std::remove_if(found.begin(), found.end(),
                               [id](const Conflict &conflict) {
                                   return conflict.id != id && conflict.other != id;
                               }),
                found.end());
    return found;
}

QString MRVShortcutCheck::describe(const Conflict &conflict, const MRVShortcutScheme &scheme)
{
    const auto keys = [&](Id id) { return scheme.shortcut(id).toString(QKeySequence::NativeText); };
    const QString text = scheme.shortcutInfo(conflict.id).text;
    const QString otherText = scheme.shortcutInfo(conflict.other).text;
    switch (conflict.kind) {
    case SameKey:
        return tr("%1 is the key of both \u201c%2\u201d and \u201c%3\u201d.")
            .arg(keys(conflict.id), text, otherText);
    case Prefix:
        return tr("%1 of \u201c%2\u201d is never reached, as %3 is the key of \u201c%4\u201d.")
            .arg(keys(conflict.other), otherText, keys(conflict.id), text);
    case DesktopKey:
        return tr("Desktops or input methods take %1, the key of \u201c%2\u201d.")
            .arg(keys(conflict.id), text);
    case TypingKey:
        return tr("%1 of \u201c%2\u201d begins with a key that writing needs.")
            .arg(keys(conflict.id), text);
    case UnnamedKey:
        return tr("The key of \u201c%1\u201d has no name and cannot be stored.").arg(text);
    }
    return QString();
}

QString MRVShortcutCheck::describe(const Difference &difference)
{
    const MRVShortcutInfo &before = difference.before;
    const MRVShortcutInfo &after = difference.after;
    if (after.id == MRVShortcut::NoId) {
        return tr("removed (%1)").arg(before.keysText());
    }
    if (before.id == MRVShortcut::NoId) {
        return tr("added (%1)").arg(after.keysText());
    }
    QStringList changes;
    if (before.sequence != after.sequence) {
        changes += before.keysText() + QLatin1String(" -> ") + after.keysText();
    }
    if (before.text != after.text) {
        changes += tr("\u201c%1\u201d -> \u201c%2\u201d").arg(before.text, after.text);
    }
    return changes.join(QLatin1String(", "));
}

QJsonObject MRVShortcutCheck::toJson(const Conflict &conflict, const MRVShortcutScheme &scheme)
{
    const auto name = [](Id id) { return QString::fromLatin1(MRVShortcut::valueToKey(id)); };
    const auto keys = [&](Id id) {
        return scheme.shortcut(id).toString(QKeySequence::PortableText);
    };
    QJsonObject object{
        {QStringLiteral("kind"), toString(conflict.kind)},
        {QStringLiteral("command"), name(conflict.id)},
        {QStringLiteral("keys"), keys(conflict.id)},
        {QStringLiteral("message"), describe(conflict, scheme)},
    };
    if (conflict.other != MRVShortcut::NoId) {
        object.insert(QStringLiteral("other"), name(conflict.other));
        object.insert(QStringLiteral("otherKeys"), keys(conflict.other));
    }
    return object;
}

QJsonObject MRVShortcutCheck::toJson(const Difference &difference)
{
    const auto side = [](const MRVShortcutInfo &info) {
        return info.id == MRVShortcut::NoId ? QJsonValue() : QJsonValue(info.toJson());
    };
    return {
        {QStringLiteral("command"), QString::fromLatin1(MRVShortcut::valueToKey(difference.id))},
        {QStringLiteral("before"), side(difference.before)},
        {QStringLiteral("after"), side(difference.after)}};
}

QList<MRVShortcut::Id> MRVShortcutCheck::owners(const MRVShortcutScheme &scheme,
                                                const QKeySequence &sequence)
{
    QList<Id> ids;
    const std::vector<int> keys = keysOf(sequence);
    const QList<MRVShortcutInfo> infos = scheme.sortedShortcuts();
    for (const MRVShortcutInfo &info : infos) {
        if (!keys.empty() && keysOf(info.sequence) == keys) {
            ids.append(info.id);
        }
    }
    return ids;
}

bool MRVShortcutCheck::isDesktopKey(const QKeySequence &sequence)
{
    for (int i = 0; i < sequence.count(); ++i) {
        if (contains(DesktopKeys, normalized(sequence[uint(i)]))) {
            return true;
        }
    }
    return false;
}

bool MRVShortcutCheck::isTypingKey(const QKeySequence &sequence)
{
    const std::vector<int> keys = keysOf(sequence);
    return !keys.empty() && contains(TypingKeys, keys.front());
}

bool MRVShortcutCheck::isUnnamedKey(const QKeySequence &sequence)
{
    const QString text = sequence.toString(QKeySequence::PortableText);
    return MRVShortcutScheme::toSequence(text) != sequence;
}

QList<MRVShortcutCheck::Difference> MRVShortcutCheck::differences(const MRVShortcutScheme &before,
                                                                  const MRVShortcutScheme &after)
{
    MRVShortcutScheme both = before;
    both.mergeShortcuts(after.shortcuts());
    QList<Difference> found;
    const QList<MRVShortcutInfo> infos = both.sortedShortcuts();
    for (const MRVShortcutInfo &info : infos) {
        const Difference difference{info.id, before.shortcutInfo(info.id),
                                    after.shortcutInfo(info.id)};
        if (difference.before != difference.after) {
            found.append(difference);
        }
    }
    return found;
}
