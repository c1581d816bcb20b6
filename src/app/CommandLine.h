// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace vellumry {

/// What the program was started for.
struct CommandLine {
    enum class Wish : quint8 {
        run,
        say,    ///< print `text` and end with success: --help, --version
        status, ///< --status
        action, ///< --action: ask the running copy for `text`
        refuse  ///< not understood: `text` on standard error, end with status 2
    };

    Wish wish = Wish::run;
    QString text;
    bool isVerbose = false;

    /// Reads the arguments of `main`. Comes before the program's own application object, and makes one for a text alone
    /// that is printed in place of a run.
    [[nodiscard]] static CommandLine read(int& argc, char** argv);
};

} // namespace vellumry
