// SPDX-License-Identifier: MIT
#include "lexical/PatternEngine.h"

#include "ZrXmlLib16/Encoder.h"
#include "lexical/LexicalMessages.h"

#include <climits>
#include <memory>
#include <new>
#include <vector>

#include <pcre.h>

namespace ZrXmlLib16 {

namespace {

struct FreePattern {
    void operator()(pcre* pattern) const { pcre_free(pattern); }
};
struct FreeStudy {
    void operator()(pcre_extra* study) const { pcre_free_study(study); }
};
struct FreeStack {
    void operator()(pcre_jit_stack* stack) const { pcre_jit_stack_free(stack); }
};

/// One execution of a compiled pattern over a text.
class Execution {
public:
    Execution(const pcre* pattern, const std::string& text)
        : m_pattern(pattern)
        , m_text(text)
    {
        int captures = 0;
        pcre_fullinfo(pattern, nullptr, PCRE_INFO_CAPTURECOUNT, &captures);
        m_offsets.resize(3 * (static_cast<std::size_t>(captures) + 1));
    }

    /// PCRE's interpreter recurses about 500 octets of machine stack per level, hence the limit: it must fit the small
    /// stacks of worker threads.
    int RunInterpreter()
    {
        pcre_extra extra{};
        extra.flags = PCRE_EXTRA_MATCH_LIMIT_RECURSION;
        extra.match_limit_recursion = 500;
        return Run(&extra, PCRE_ANCHORED);
    }

    /// Compiled to machine code, matching keeps its state on a growing stack on the heap. The anchored option would
    /// switch that off; the pattern starts with ^ anyway. Without machine code the recursion limit stays the answer.
    int RunCompiled()
    {
        const char* error = nullptr;
        const std::unique_ptr<pcre_extra, FreeStudy> study(pcre_study(m_pattern, PCRE_STUDY_JIT_COMPILE, &error));
        int hasCode = 0;
        if (!study || pcre_fullinfo(m_pattern, study.get(), PCRE_INFO_JIT, &hasCode) != 0 || hasCode == 0) {
            return PCRE_ERROR_RECURSIONLIMIT;
        }
        const std::unique_ptr<pcre_jit_stack, FreeStack> stack(pcre_jit_stack_alloc(32 * 1024, 64 * 1024 * 1024));
        if (!stack) {
            throw std::bad_alloc();
        }
        pcre_assign_jit_stack(study.get(), nullptr, stack.get());
        return Run(study.get(), 0);
    }

    bool MatchedAll(int code) const
    {
        return code > 0 && m_offsets[0] == 0 && m_offsets[1] == static_cast<int>(m_text.length());
    }

private:
    int Run(const pcre_extra* extra, int options)
    {
        return pcre_exec(m_pattern, extra, m_text.data(), static_cast<int>(m_text.length()), 0, options,
            m_offsets.data(), static_cast<int>(m_offsets.size()));
    }

    const pcre* m_pattern;
    const std::string& m_text;
    std::vector<int> m_offsets;
};

} // namespace

SearchResult SearchAnchored(const std::string& expression, const std::string& text)
{
    const char* error = nullptr;
    int errorOffset = 0;
    const std::unique_ptr<pcre, FreePattern> compiled(
        pcre_compile(expression.c_str(), PCRE_UTF8, &error, &errorOffset, nullptr));
    if (!compiled) {
        return {false, CEncoder::Utf8ToUnicode(std::string(error))};
    }
    if (text.length() > INT_MAX) {
        return {false, LexicalMessages::MatchLimitExceeded};
    }
    Execution execution(compiled.get(), text);
    int code = execution.RunInterpreter();
    if (code == PCRE_ERROR_RECURSIONLIMIT) {
        code = execution.RunCompiled();
    }
    if (code == PCRE_ERROR_RECURSIONLIMIT || code == PCRE_ERROR_JIT_STACKLIMIT) {
        return {false, LexicalMessages::MatchLimitExceeded};
    }
    if (code == PCRE_ERROR_NOMEMORY) {
        throw std::bad_alloc();
    }
    return {execution.MatchedAll(code), {}};
}

} // namespace ZrXmlLib16
