#include "search/mrvexpression_p.h"

#include <QCoreApplication>

#define PCRE2_CODE_UNIT_WIDTH 16
#include <pcre2.h>

#include <algorithm>
#include <iterator>

namespace {

// What a search may cost before it is given up. The first counts steps: a tenth of a second or two.
// The second counts kilobytes: a group that repeats takes two hundred bytes a character.
constexpr uint32_t MaxSteps = 10'000'000;
constexpr uint32_t MaxHeap = 128 * 1024;
constexpr size_t FirstJitStack = 32 * 1024;
constexpr size_t MaxJitStack = 1024 * 1024;

uint32_t optionsOf(QRegularExpression::PatternOptions options)
{
    static constexpr struct
    {
        QRegularExpression::PatternOption option;
        uint32_t flag;
    } rows[] = {
        {QRegularExpression::CaseInsensitiveOption, PCRE2_CASELESS},
        {QRegularExpression::DotMatchesEverythingOption, PCRE2_DOTALL},
        {QRegularExpression::MultilineOption, PCRE2_MULTILINE},
        {QRegularExpression::ExtendedPatternSyntaxOption, PCRE2_EXTENDED},
        {QRegularExpression::InvertedGreedinessOption, PCRE2_UNGREEDY},
        {QRegularExpression::DontCaptureOption, PCRE2_NO_AUTO_CAPTURE},
    };
    uint32_t flags = PCRE2_UTF | PCRE2_UCP | PCRE2_USE_OFFSET_LIMIT;
    for (const auto &row : rows) {
        if (options & row.option) {
            flags |= row.flag;
        }
    }
    return flags;
}

PCRE2_SPTR16 codeUnits(const QString &text)
{
    return reinterpret_cast<PCRE2_SPTR16>(text.utf16());
}

template<auto free>
struct Freed
{
    template<typename T>
    void operator()(T *owned) const
    {
        free(owned);
    }
};

template<typename T, auto free>
using Owned = std::unique_ptr<T, Freed<free>>;

using MatchData = Owned<pcre2_match_data_16, pcre2_match_data_free_16>;

} // namespace

struct MRVExpression::Compiled
{
    explicit Compiled(const QRegularExpression &expression);

    QRegularExpression source;
    int search(pcre2_match_data_16 *data, const QString &text, int from, uint32_t options) const;
    int interpret(const QString &text, int from, uint32_t options) const;

    Owned<pcre2_code_16, pcre2_code_free_16> code;
    MatchData match;
    Owned<pcre2_match_context_16, pcre2_match_context_free_16> context;
    Owned<pcre2_jit_stack_16, pcre2_jit_stack_free_16> jitStack;
    int error = 0;
    size_t errorOffset = 0;
};

MRVExpression::Compiled::Compiled(const QRegularExpression &expression)
    : source(expression)
{
    const QString pattern = expression.pattern();
    code.reset(pcre2_compile_16(codeUnits(pattern), size_t(pattern.size()),
                                optionsOf(expression.patternOptions()), &error, &errorOffset,
                                nullptr));
    if (!code) {
        return;
    }
    match.reset(pcre2_match_data_create_from_pattern_16(code.get(), nullptr));
    context.reset(pcre2_match_context_create_16(nullptr));
    pcre2_set_match_limit_16(context.get(), MaxSteps);
    pcre2_set_heap_limit_16(context.get(), MaxHeap);
    // Where the system refuses to run generated code, the expression is interpreted.
    if (pcre2_jit_compile_16(code.get(), PCRE2_JIT_COMPLETE) == 0) {
        jitStack.reset(pcre2_jit_stack_create_16(FirstJitStack, MaxJitStack, nullptr));
        pcre2_jit_stack_assign_16(context.get(), nullptr, jitStack.get());
    }
}

int MRVExpression::Compiled::search(pcre2_match_data_16 *data, const QString &text, int from,
                                    uint32_t options) const
{
    return pcre2_match_16(code.get(), codeUnits(text), size_t(text.size()), size_t(from), options,
                          data, context.get());
}

// Without the generated code, whose stack is small. The memory that this takes belongs to the match
// data, so it gets some of its own.
int MRVExpression::Compiled::interpret(const QString &text, int from, uint32_t options) const
{
    const MatchData own(pcre2_match_data_create_from_pattern_16(code.get(), nullptr));
    const int result = search(own.get(), text, from, options | PCRE2_NO_JIT);
    const size_t *found = pcre2_get_ovector_pointer_16(own.get());
    std::copy(found, found + 2 * pcre2_get_ovector_count_16(own.get()),
              pcre2_get_ovector_pointer_16(match.get()));
    return result;
}

// A compilation takes longer than searching a paragraph. So the last expression is kept; searching
// from match to match always asks for the same one.
MRVExpression::MRVExpression(const QRegularExpression &expression)
{
    static thread_local std::shared_ptr<const Compiled> last;
    if (!last || last->source != expression) {
        last = std::make_shared<const Compiled>(expression);
    }
    m_compiled = last;
}

bool MRVExpression::isValid() const
{
    return m_compiled->code != nullptr;
}

QString MRVExpression::errorString() const
{
    ushort text[256];
    const int length = pcre2_get_error_message_16(
        m_compiled->error, reinterpret_cast<PCRE2_UCHAR16 *>(text), std::size(text));
    const QString message = QString::fromUtf16(text, qMax(0, length));
    return QCoreApplication::translate("QRegularExpression", message.toLatin1().constData());
}

int MRVExpression::errorOffset() const
{
    return int(m_compiled->errorOffset);
}

int MRVExpression::groupCount() const
{
    uint32_t count = 0;
    pcre2_pattern_info_16(m_compiled->code.get(), PCRE2_INFO_CAPTURECOUNT, &count);
    return int(count);
}

int MRVExpression::groupNamed(const QString &name) const
{
    PCRE2_SPTR16 first = nullptr;
    PCRE2_SPTR16 last = nullptr;
    const int size =
        pcre2_substring_nametable_scan_16(m_compiled->code.get(), codeUnits(name), &first, &last);
    return size > 0 ? int(first[0]) : -1;
}

bool MRVExpression::dependsOnStart() const
{
    const QString pattern = m_compiled->source.pattern();
    return pattern.contains(QLatin1String("\\G")) || pattern.contains(QLatin1String("(*"));
}

MRVExpression::Result MRVExpression::match(const QString &text, int from, int last,
                                           MRVEmptyMatch empty) const
{
    pcre2_match_context_16 *context = m_compiled->context.get();
    pcre2_set_offset_limit_16(context, size_t(last));
    // The caller has checked the surrogates once. PCRE2 would do so at each search, from the start
    // of the text.
    const uint32_t options =
        PCRE2_NO_UTF_CHECK | (empty == MRVEmptyMatch::Allowed ? 0 : PCRE2_NOTEMPTY_ATSTART);
    int found = m_compiled->search(m_compiled->match.get(), text, from, options);
    if (found == PCRE2_ERROR_JIT_STACKLIMIT) {
        found = m_compiled->interpret(text, from, options);
    }
    return found >= 0 ? Found : found == PCRE2_ERROR_NOMATCH ? NotFound : TooCostly;
}

MRVTextMatch MRVExpression::captured(int group) const
{
    const size_t *offsets = pcre2_get_ovector_pointer_16(m_compiled->match.get());
    if (group < 0 || uint32_t(group) >= pcre2_get_ovector_count_16(m_compiled->match.get())
        || offsets[2 * group] == PCRE2_UNSET) {
        return MRVTextMatch();
    }
    return {int(offsets[2 * group]), int(offsets[2 * group + 1] - offsets[2 * group])};
}
