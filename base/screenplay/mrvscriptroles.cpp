#include "screenplay/mrvscriptroles_p.h"

#include "textformat/mrvtextformat.h"

#include <QTextBlock>
#include <QTextDocument>

namespace {

using Element = MRVFountainElement;
using Role = MrvScriptRole;

struct RoleRow
{
    Role role;
    // Titles in the order in which they are searched for; the first is that of the built-in mode.
    const char *titles;
};

// clang-format off
constexpr RoleRow rows[] = {
    {mrvScriptRole(Element::SceneHeading),  "Scene Heading|Slug Line|Slugline|Scene|Panel Heading|Sequence Heading|Time Code"},
    {mrvScriptRole(Element::Action),        "Action|Stage Direction|Description|Narrative|Scene Description|Introduction|Sound"},
    {mrvScriptRole(Element::Character),     "Character|Character Name|Character Cue"},
    {mrvScriptRole(Element::Parenthetical), "Parenthetical|Direction in Speech|Direction|Lettering Note|Wryly"},
    {mrvScriptRole(Element::Dialogue),      "Dialogue|Dialog|Balloon|Speech Continued|Answer Continued"},
    {mrvScriptRole(Element::Lyrics),        "Lyrics|Lyric|Verse|Song"},
    {mrvScriptRole(Element::Transition),    "Transition|Curtain|Ending"},
    {mrvScriptRole(Element::Centered),      "Centered|Centred|Cover Copy|Announcement|Pull Quote"},
    {mrvScriptRole(Element::Note),          "Note|Editor's Note"},
    {mrvScriptRole(Element::Section),       "Section|Act Heading|Section Heading|Page Heading"},
    {mrvScriptRole(Element::Synopsis),      "Synopsis|Logline|Standfirst"},
    {mrvScriptRole(Element::Boneyard),      "Boneyard|Omitted"},
    {Role::DualCharacter,                   "Dual Character"},
    {Role::DualParenthetical,               "Dual Parenthetical"},
    {Role::DualDialogue,                    "Dual Dialogue"},
    {Role::TitlePage,                       "Title Page|Play Title|Programme Title|Episode Title|Title|Headline"},
    {Role::HangingSpeech,                   "Speech|Speaker"},
};
// clang-format on

int indexOf(const MRVScriptMode &mode, const RoleRow &row)
{
    const QStringList titles = QString::fromLatin1(row.titles).split(u'|');
    for (const QString &title : titles) {
        for (int i = 0; i < mode.elements().size(); ++i) {
            if (mode.elements().at(i).title().compare(title, Qt::CaseInsensitive) == 0) {
                return i;
            }
        }
    }
    return -1;
}

int firstEqual(const MRVScriptMode &mode, const QTextBlockFormat &format)
{
    for (int i = 0; i < mode.elements().size(); ++i) {
        if (MRVScriptElement::equal(mode.elements().at(i).blockFormat(), format)) {
            return i;
        }
    }
    return -1;
}

MRVScriptElement builtInElement(Role role, const MRVScriptMode &builtIn)
{
    for (const RoleRow &row : rows) {
        const int index = row.role == role ? indexOf(builtIn, row) : -1;
        if (index >= 0) {
            return builtIn.elements().at(index);
        }
    }
    const int note = builtIn.indexOf(QStringLiteral("Note"));
    return note >= 0 ? builtIn.elements().at(note) : MRVScriptElement();
}

} // namespace

MrvScriptRoles::MrvScriptRoles(const MRVScriptMode &mode)
    : m_mode(mode)
{
    MRVScriptMode builtIn;
    builtIn.loadFactoryDefaults();
    for (const RoleRow &row : rows) {
        const int index = indexOf(mode, row);
        if (index >= 0) {
            m_own.insert(int(row.role), index);
        }
        MRVScriptElement element =
            index >= 0 ? mode.elements().at(index) : builtInElement(row.role, builtIn);
        if (index < 0 || firstEqual(mode, element.blockFormat()) != index) {
            QTextBlockFormat format = element.blockFormat();
            format.setProperty(MrvScriptRoleProperty, int(row.role));
            element.setBlockFormat(format);
        }
        m_elements.insert(int(row.role), element);
    }
}

MrvScriptRole MrvScriptRoles::roleAt(int element) const
{
    for (const RoleRow &row : rows) {
        if (m_own.value(int(row.role), -1) == element) {
            return row.role;
        }
    }
    return mrvScriptRole(Element::Action);
}

MrvScriptRole MrvScriptRoles::roleOf(const QTextBlock &block) const
{
    const auto known = m_known.constFind(block.blockFormatIndex());
    if (known != m_known.cend()) {
        return *known;
    }
    const QTextBlockFormat format = block.blockFormat();
    Role role = mrvScriptRole(Element::Action);
    const int stored = format.property(MrvScriptRoleProperty).toInt();
    if (stored == int(Element::PageBreak) || m_elements.contains(stored)) {
        role = Role(stored);
    }
    if (!format.hasProperty(MrvScriptRoleProperty)) {
        const int index = firstEqual(m_mode, format);
        role = index >= 0 ? roleAt(index) : mrvScriptRole(Element::Action);
        // The user has centred a paragraph: not an element of the mode, but the meaning is clear.
        if (index < 0 && (format.alignment() & Qt::AlignHCenter)) {
            role = mrvScriptRole(Element::Centered);
        }
    }
    m_known.insert(block.blockFormatIndex(), role);
    return role;
}

MRVFountainRun::Emphasis mrvEmphasisOf(const QTextCharFormat &format)
{
    MRVFountainRun::Emphasis emphasis;
    emphasis.setFlag(MRVFountainRun::Italic, format.fontItalic());
    emphasis.setFlag(MRVFountainRun::Bold, format.fontWeight() > QFont::Medium);
    emphasis.setFlag(MRVFountainRun::Underline, format.fontUnderline());
    return emphasis;
}
