// SPDX-License-Identifier: MIT
#pragma once

#include <source_location>

#ifdef __cpp_lib_source_location
/// The place in the source from which a function was called.
using LMSourceLocation = std::source_location;
#else
/// Stands in for std::source_location where the compiler does not support it yet: clang before
/// version 16, which the lint step may run.
class LMSourceLocation {
public:
    static constexpr LMSourceLocation current(const char* file = __builtin_FILE(),
                                              const char* function = __builtin_FUNCTION(),
                                              unsigned line = __builtin_LINE()) noexcept {
        return LMSourceLocation(file, function, line);
    }

    constexpr const char* file_name() const noexcept { return m_file; }
    constexpr const char* function_name() const noexcept { return m_function; }
    constexpr unsigned line() const noexcept { return m_line; }

private:
    constexpr LMSourceLocation(const char* file, const char* function, unsigned line)
        : m_file(file), m_function(function), m_line(line) {}

    const char* m_file;
    const char* m_function;
    unsigned m_line;
};
#endif
