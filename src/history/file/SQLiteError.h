// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <stdexcept>
#include <string>

namespace vellumry {

/// A failure of the history file, in SQLite's own words.
class SQLiteError : public std::runtime_error {
public:
    enum class Case { open, prepare, step };

    /// `code` is SQLite's extended result code, `systemError` the errno behind it, 0 where there is none.
    SQLiteError(Case kind, int code, const std::string& message, int systemError = 0)
        : std::runtime_error((kind == Case::open ? "Couldn't open the history file: " : "History file error: ") +
                             message)
        , m_case(kind)
        , m_code(code)
        , m_systemError(systemError) {}

    [[nodiscard]] Case kind() const { return m_case; }
    /// The result code without what SQLite adds to it: SQLITE_IOERR for each of its kinds.
    [[nodiscard]] int code() const { return m_code & 0xff; }
    [[nodiscard]] int extendedCode() const { return m_code; }
    [[nodiscard]] int systemError() const { return m_systemError; }
    [[nodiscard]] QString errorDescription() const { return QString::fromUtf8(what()); }

private:
    Case m_case;
    int m_code;
    int m_systemError;
};

} // namespace vellumry
