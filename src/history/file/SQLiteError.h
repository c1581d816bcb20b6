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

    SQLiteError(Case kind, const std::string& message)
        : std::runtime_error((kind == Case::open ? "Couldn't open the history file: " : "History file error: ") +
                             message)
        , m_case(kind) {}

    [[nodiscard]] Case kind() const { return m_case; }
    [[nodiscard]] QString errorDescription() const { return QString::fromUtf8(what()); }

private:
    Case m_case;
};

} // namespace vellumry
