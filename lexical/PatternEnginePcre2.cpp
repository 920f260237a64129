// SPDX-License-Identifier: MIT
#include "lexical/PatternEngine.h"

#include "ZrXmlLib16/Encoder.h"
#include "lexical/LexicalMessages.h"

#include <algorithm>
#include <climits>
#include <memory>
#include <new>
#include <string_view>

#define PCRE2_CODE_UNIT_WIDTH 8
#include <pcre2.h>

namespace ZrXmlLib16 {

namespace {

struct Free {
    void operator()(pcre2_code* pattern) const { pcre2_code_free(pattern); }
    void operator()(pcre2_compile_context* context) const { pcre2_compile_context_free(context); }
    void operator()(pcre2_match_context* context) const { pcre2_match_context_free(context); }
    void operator()(pcre2_match_data* data) const { pcre2_match_data_free(data); }
    void operator()(pcre2_jit_stack* stack) const { pcre2_jit_stack_free(stack); }
};

template <class T> using Owned = std::unique_ptr<T, Free>;

template <class T> Owned<T> Own(T* created)
{
    if (created == nullptr) {
        throw std::bad_alloc();
    }
    return Owned<T>(created);
}

PCRE2_SPTR Units(const std::string& text)
{
    return reinterpret_cast<PCRE2_SPTR>(text.c_str());
}

std::wstring ReasonOf(int error)
{
    PCRE2_UCHAR reason[256] = {};
    pcre2_get_error_message(error, reason, sizeof reason);
    return CEncoder::Utf8ToUnicode(std::string(reinterpret_cast<const char*>(reason)));
}

/// PCRE2 refuses what PCRE 1 took literally: a hyphen between a set of characters and another one in a class, as in
/// [\w-.], and backslashes before letters that mean nothing; newer versions also read {,2} and { 2 } as repetitions.
/// Rewritten, these mean what they always meant.
class NotationOfPcre2 {
public:
    explicit NotationOfPcre2(const std::string& expression)
        : m_rest(expression)
    {
        m_result.reserve(expression.length() + 16);
    }

    std::string Rewrite()
    {
        while (!m_rest.empty()) {
            if (m_rest.front() == '\\') {
                Escape();
            } else if (m_inClass) {
                InClass();
            } else {
                OutsideClass();
            }
        }
        return std::move(m_result);
    }

private:
    void Take(std::size_t count)
    {
        m_result += m_rest.substr(0, count);
        m_rest.remove_prefix(std::min(count, m_rest.length()));
    }

    /// Takes everything up to the end mark, or all when there is none.
    void TakeThrough(std::string_view end)
    {
        const std::size_t at = m_rest.find(end);
        Take(at == std::string_view::npos ? m_rest.length() : at + end.length());
    }

    bool StartsWith(std::string_view text) const { return m_rest.substr(0, text.length()) == text; }

    void Escape()
    {
        constexpr std::string_view literals = "FJMOTYjmqy";
        constexpr std::string_view literalsInClass = "ABGKRXZkz";
        constexpr std::string_view sets = "DHPSVWdhpsvw";
        const char letter = m_rest.length() > 1 ? m_rest[1] : '\0';
        if (letter == 'Q') {
            TakeThrough("\\E");
            return;
        }
        if (literals.find(letter) != literals.npos || (m_inClass && literalsInClass.find(letter) != literals.npos)) {
            m_rest.remove_prefix(1);
            Take(1);
        } else {
            Take(2);
            if (StartsWith("{") && std::string_view("Pgkopx").find(letter) != std::string_view::npos) {
                TakeThrough("}");
            }
        }
        m_afterSet = m_inClass && sets.find(letter) != sets.npos;
    }

    void InClass()
    {
        if (m_rest.front() == ']') {
            m_inClass = false;
        } else if (StartsWith("[:") && m_rest.find(":]") != std::string_view::npos) {
            TakeThrough(":]");
            m_afterSet = true;
            return;
        } else if (m_rest.front() == '-' && m_afterSet) {
            m_result += '\\';
        }
        m_afterSet = false;
        Take(1);
    }

    void OutsideClass()
    {
        if (m_rest.front() == '[') {
            Take(StartsWith("[^]") ? 3 : StartsWith("[]") || StartsWith("[^") ? 2 : 1);
            m_inClass = true;
            m_afterSet = false;
            return;
        }
        if (m_rest.front() == '{' && !IsRepetition()) {
            m_result += '\\';
        }
        Take(1);
    }

    /// {2} or {2,} or {2,3}
    bool IsRepetition() const
    {
        constexpr std::string_view digits = "0123456789";
        std::size_t at = m_rest.find_first_not_of(digits, 1);
        if (at == 1 || at == std::string_view::npos) {
            return false;
        }
        if (m_rest[at] == ',') {
            at = m_rest.find_first_not_of(digits, at + 1);
        }
        return at != std::string_view::npos && m_rest[at] == '}';
    }

    std::string_view m_rest;
    std::string m_result;
    bool m_inClass = false;
    bool m_afterSet = false;
};

/// Depth of the first attempt, without machine code: texts of ordinary length stay below.
constexpr std::uint32_t QuickDepth = 500;
/// The state of a long search may grow to this.
constexpr std::uint32_t MaxStateSize = 64 * 1024 * 1024;
constexpr std::uint32_t MatchLimit = 10'000'000;

/// One execution of a compiled pattern over a text. The engine keeps the state of a search on the heap.
class Execution {
public:
    Execution(pcre2_code* pattern, const std::string& text)
        : m_pattern(pattern)
        , m_text(text)
        , m_context(Own(pcre2_match_context_create(nullptr)))
        , m_match(Own(pcre2_match_data_create_from_pattern(pattern, nullptr)))
    {
        pcre2_set_match_limit(m_context.get(), MatchLimit);
        pcre2_set_heap_limit(m_context.get(), MaxStateSize / 1024);
    }

    int RunInterpreter(std::uint32_t maxDepth)
    {
        pcre2_set_depth_limit(m_context.get(), maxDepth);
        return Run(PCRE2_NO_JIT);
    }

    /// Machine code needs far less state per level. Where it cannot be made, the interpreter goes on alone.
    int RunCompiled()
    {
        if (pcre2_jit_compile(m_pattern, PCRE2_JIT_COMPLETE) != 0) {
            return RunInterpreter(MatchLimit);
        }
        const Owned<pcre2_jit_stack> stack = Own(pcre2_jit_stack_create(32 * 1024, MaxStateSize, nullptr));
        pcre2_jit_stack_assign(m_context.get(), nullptr, stack.get());
        return Run(0);
    }

    bool MatchedAll(int code) const
    {
        const PCRE2_SIZE* offsets = pcre2_get_ovector_pointer(m_match.get());
        return code > 0 && offsets[0] == 0 && offsets[1] == m_text.length();
    }

private:
    int Run(std::uint32_t options)
    {
        return pcre2_match(m_pattern, Units(m_text), m_text.length(), 0, options, m_match.get(), m_context.get());
    }

    pcre2_code* m_pattern;
    const std::string& m_text;
    Owned<pcre2_match_context> m_context;
    Owned<pcre2_match_data> m_match;
};

} // namespace

SearchResult SearchAnchored(const std::string& expression, const std::string& text)
{
    const Owned<pcre2_compile_context> context = Own(pcre2_compile_context_create(nullptr));
    pcre2_set_newline(context.get(), PCRE2_NEWLINE_LF);
    int error = 0;
    PCRE2_SIZE errorOffset = 0;
    const std::string notation = NotationOfPcre2(expression).Rewrite();
    const Owned<pcre2_code> compiled(
        pcre2_compile(Units(notation), PCRE2_ZERO_TERMINATED, PCRE2_UTF, &error, &errorOffset, context.get()));
    if (!compiled) {
        return {false, ReasonOf(error)};
    }
    if (text.length() > INT_MAX) {
        return {false, LexicalMessages::MatchLimitExceeded};
    }
    Execution execution(compiled.get(), text);
    int code = execution.RunInterpreter(QuickDepth);
    if (code == PCRE2_ERROR_DEPTHLIMIT) {
        code = execution.RunCompiled();
    }
    if (code == PCRE2_ERROR_DEPTHLIMIT || code == PCRE2_ERROR_HEAPLIMIT || code == PCRE2_ERROR_JIT_STACKLIMIT) {
        return {false, LexicalMessages::MatchLimitExceeded};
    }
    if (code == PCRE2_ERROR_NOMEMORY) {
        throw std::bad_alloc();
    }
    return {execution.MatchedAll(code), {}};
}

} // namespace ZrXmlLib16
