// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace vellumry {

namespace {

struct Options {
    QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this text.")};
    QCommandLineOption version{{QStringLiteral("v"), QStringLiteral("version")}, QStringLiteral("Show the version.")};
    QCommandLineOption status{QStringLiteral("status"),
                              QStringLiteral("Show what was found and what is missing, with reasons, counts and sizes. "
                                             "Never shows what was copied.")};
    QCommandLineOption verbose{QStringLiteral("verbose"),
                               QStringLiteral("Write what is found and done to standard error, not only problems. "
                                              "Never what was copied.")};
    QCommandLineOption action{
        QStringLiteral("action"),
        QStringLiteral("Ask the running program for open-panel, toggle-stack, pause, ignore-next, toggle-screenshots, "
                       "clear, open-settings, quit, or paste-pin-1 to paste-pin-9."),
        QStringLiteral("name")};
    /// What a session manager starts programs with that ran when the session was saved (XSMP).
    QCommandLineOption session{QStringLiteral("session"), QString(), QStringLiteral("id")};

    Options() { session.setFlags(QCommandLineOption::HiddenFromHelp); }
};

/// Qt takes the program's name in it from the application object. That object lives for this text alone: behind an
/// earlier one, the application with the windows is not found by assistive technology.
QString usage(const QCommandLineParser& parser, int& argc, char** argv) {
    const QCoreApplication application(argc, argv);
    return parser.helpText() + u'\n';
}

CommandLine understood(int& argc, char** argv) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    QCommandLineParser parser;
    const Options options;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(QStringLiteral("Clipboard history: runs in the background; a second start opens "
                                                    "the settings of the first."));
    parser.addOptions(
        {options.help, options.version, options.status, options.verbose, options.action, options.session});
    using Wish = CommandLine::Wish;
    const auto refusal = [&](const QString& problem) {
        return CommandLine{Wish::refuse, problem + QStringLiteral("\n\n") + usage(parser, argc, argv), false};
    };
    if (!parser.parse(arguments))
        return refusal(parser.errorText());
    if (!parser.positionalArguments().isEmpty())
        return refusal(QStringLiteral("The program takes options only."));
    if (parser.isSet(options.help))
        return {Wish::say, usage(parser, argc, argv), false};
    if (parser.isSet(options.version))
        return {Wish::say,
                QStringLiteral("Vellumry %1 (Qt %2)\n")
                    .arg(QCoreApplication::applicationVersion(), QString::fromLatin1(qVersion())),
                false};
    if (parser.isSet(options.status))
        return {Wish::status, QString(), false};
    if (parser.isSet(options.action))
        return {Wish::action, parser.value(options.action), false};
    return {Wish::run, QString(), parser.isSet(options.verbose)};
}

} // namespace

CommandLine CommandLine::read(int& argc, char** argv) {
    if (argc <= 1)
        return {};
    return understood(argc, argv);
}

} // namespace vellumry
