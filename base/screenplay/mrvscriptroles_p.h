#pragma once

#include "screenplay/mrvfountain.h"
#include "scriptmode/mrvscriptmode.h"

#include <QHash>
#include <QTextBlockFormat>

class QTextBlock;
class QTextCharFormat;

/**
 * The roles of paragraphs in a script, beyond the kinds of Fountain. Documents store the numbers.
 */
enum class MrvScriptRole {
    // The first are those of MRVFountainElement::Kind.
    DualCharacter = 20,
    DualParenthetical = 21,
    DualDialogue = 22,
    TitlePage = 23,
    HangingSpeech = 24, ///< name, tab and speech in one paragraph
};

/** MRVScriptDocument::RoleProperty, which lies above. */
constexpr int MrvScriptRoleProperty = 0x100201;

/** Which element of a mode has which role, by the titles that modes give to them. */
class MrvScriptRoles
{
public:
    explicit MrvScriptRoles(const MRVScriptMode &mode);

    /** Whether the mode itself has an element for the role. */
    bool has(MrvScriptRole role) const { return m_own.contains(int(role)); }

    /**
     * The element for a role: of the built-in mode where the mode has none. Where the mode cannot
     * distinguish its paragraphs from others, their format carries the role.
     */
    MRVScriptElement element(MrvScriptRole role) const { return m_elements.value(int(role)); }

    /** The role of a paragraph; action where it matches no element. */
    MrvScriptRole roleOf(const QTextBlock &block) const;

private:
    MrvScriptRole roleAt(int element) const;

    MRVScriptMode m_mode;
    QHash<int, MRVScriptElement> m_elements; // by role
    QHash<int, int> m_own; // role to index in the mode
    mutable QHash<int, MrvScriptRole> m_known; // by index of the block format
};

/** The emphasis that a format shows. */
MRVFountainRun::Emphasis mrvEmphasisOf(const QTextCharFormat &format);

constexpr MrvScriptRole mrvScriptRole(MRVFountainElement::Kind kind)
{
    return MrvScriptRole(int(kind));
}
