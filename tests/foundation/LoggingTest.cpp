// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Logging.h"

#include <QRegularExpression>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

class LoggingTest : public ::testing::Test {
protected:
    ~LoggingTest() override {
        logging::setDetail(logging::Detail::warnings);
        qInstallMessageHandler(nullptr);
    }
    /// What standard error got while `work` ran.
    template <typename Work>
    static QString written(Work work) {
        testing::internal::CaptureStderr();
        work();
        return QString::fromStdString(testing::internal::GetCapturedStderr());
    }
    static void sayBoth() {
        qCInfo(logging::capture) << "kept" << 3 << "formats";
        qCWarning(logging::x11) << "no XTest";
    }
};

TEST_F(LoggingTest, OnlyWarningsAreWrittenUnlessMoreIsAskedFor) {
    logging::start(logging::Detail::warnings);
    const QString text = written(&sayBoth);
    EXPECT_FALSE(text.contains(QStringLiteral("kept")));
    EXPECT_TRUE(text.contains(QStringLiteral("no XTest")));
}

TEST_F(LoggingTest, EverythingIsWrittenWhenItIsAskedFor) {
    logging::start(logging::Detail::all);
    const QStringList lines = written(&sayBoth).split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 2);
    EXPECT_TRUE(lines[0].endsWith(QStringLiteral(" info vellumry.capture: kept 3 formats"))) << qPrintable(lines[0]);
    EXPECT_TRUE(lines[1].endsWith(QStringLiteral(" warning vellumry.linux.x11: no XTest"))) << qPrintable(lines[1]);
}

TEST_F(LoggingTest, ALineSaysWhenAndHowBad) {
    const QString line =
        QString::fromUtf8(logging::line(QtCriticalMsg, "vellumry.history", QStringLiteral("full"), false));
    const QRegularExpression form(
        QStringLiteral(R"(^\d{4}-\d\d-\d\d \d\d:\d\d:\d\d\.\d{3} error vellumry\.history: full\n$)"));
    EXPECT_TRUE(form.match(line).hasMatch()) << qPrintable(line);
}

TEST_F(LoggingTest, TheJournalGetsThePriorityInPlaceOfTheTime) {
    const struct {
        QtMsgType type;
        const char* start;
    } levels[] = {{QtInfoMsg, "<6>"}, {QtWarningMsg, "<4>"}, {QtCriticalMsg, "<3>"}, {QtFatalMsg, "<2>"}};
    for (const auto& level : levels)
        EXPECT_EQ(logging::line(level.type, "vellumry.app", QStringLiteral("x"), true),
                  QByteArray(level.start) + "vellumry.app: x\n");
}

TEST_F(LoggingTest, AMessageIsOneLineWhateverStandsInIt) {
    EXPECT_EQ(logging::line(QtWarningMsg, "vellumry.app", QStringLiteral("one\r\n<2>two\n"), true),
              "<4>vellumry.app: one  <2>two \n");
}

TEST_F(LoggingTest, StandardErrorIsTheJournalOnlyWhenTheServiceManagerSaysThatThisFileIs) {
    qputenv("JOURNAL_STREAM", "1:2");
    logging::start(logging::Detail::warnings);
    qunsetenv("JOURNAL_STREAM");
    EXPECT_FALSE(written(&sayBoth).startsWith(u'<'));
}

} // namespace
} // namespace vellumry
