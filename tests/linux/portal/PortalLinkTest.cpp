// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/portal/PortalLink.h"

#include "linux/portal/PortalWorld.h"

namespace vellumry {

namespace {

using namespace std::chrono_literals;
using Outcome = PortalLink::Outcome;

const QString interface = QStringLiteral("org.freedesktop.portal.RemoteDesktop");

class PortalLinkTest : public PortalWorld {
protected:
    PortalLink::Answer asked(std::chrono::milliseconds limit = 60s) {
        return awaited(link->request({interface, QStringLiteral("Start")}, limit));
    }
};

} // namespace

TEST_F(PortalLinkTest, ThePortalHearsOurNameBeforeAnythingElse) {
    EXPECT_EQ(asked().outcome, Outcome::given);
    ASSERT_GE(portal.calls.size(), 2U);
    EXPECT_EQ(portal.calls[0].member, u"Register");
    EXPECT_EQ(portal.calls[0].arguments.value(0), QStringLiteral("com.vellumry.Vellumry"));
    EXPECT_EQ(asked().outcome, Outcome::given);
    EXPECT_EQ(portal.count("Register"), 1) << "a second time is an error";
}

TEST_F(PortalLinkTest, APortalThatKnowsUsIsNotToldAgain) {
    introduction->begin();
    const auto heard = introduction->made();
    runUntil([this] { return portal.count("Register") == 1; });
    EXPECT_EQ(asked().outcome, Outcome::given);
    EXPECT_EQ(portal.count("Register"), 1);
}

TEST_F(PortalLinkTest, APortalThatTakesNoNamesIsAskedAllTheSame) {
    portal.responses[QStringLiteral("Register")].isError = true;
    EXPECT_EQ(asked().outcome, Outcome::given);
}

TEST_F(PortalLinkTest, AResponseThatOvertakesTheAnswerToTheCallCounts) {
    portal.responses[QStringLiteral("Start")].comesFirst = true;
    const PortalLink::Answer answer = asked();
    EXPECT_EQ(answer.outcome, Outcome::given);
    EXPECT_EQ(answer.results.value(QStringLiteral("devices")).toUInt(), 1U);
}

TEST_F(PortalLinkTest, TellsRefusalFromFailure) {
    portal.responses[QStringLiteral("Start")].code = 1;
    EXPECT_EQ(asked().outcome, Outcome::refused);
    portal.responses[QStringLiteral("Start")].code = 2;
    EXPECT_EQ(asked().outcome, Outcome::failed);
    portal.responses[QStringLiteral("Start")].code = 77;
    EXPECT_EQ(asked().outcome, Outcome::failed);
}

TEST_F(PortalLinkTest, AResponseThatIsNoneIsAFailure) {
    portal.responses[QStringLiteral("Start")].isGarbled = true;
    EXPECT_EQ(asked().outcome, Outcome::failed);
}

TEST_F(PortalLinkTest, ARequestThatIsNotAnsweredIsTakenBack) {
    portal.responses[QStringLiteral("Start")].isSilent = true;
    EXPECT_EQ(asked(20ms).outcome, Outcome::unanswered);
    runUntil([this] { return portal.count("Close") == 1; });
    EXPECT_TRUE(portal.last("Close").path.contains(u"/request/"));
}

TEST_F(PortalLinkTest, WithoutAPortalNothingIsWaitedFor) {
    portal.end();
    EXPECT_EQ(asked().outcome, Outcome::missing);
}

TEST_F(PortalLinkTest, AMethodThatThePortalLacksIsMissing) {
    portal.responses[QStringLiteral("Start")].isError = true;
    EXPECT_EQ(asked().outcome, Outcome::missing);
}

TEST_F(PortalLinkTest, APortalThatEndsAnswersWhatIsOpenAndHearsOurNameWhenItIsBack) {
    portal.responses[QStringLiteral("Start")].isSilent = true;
    int ends = 0;
    int begins = 0;
    QObject::connect(link.get(), &PortalLink::ended, [&ends] { ++ends; });
    QObject::connect(link.get(), &PortalLink::began, [&begins] { ++begins; });
    std::optional<PortalLink::Answer> answer;
    auto asking = link->request({interface, QStringLiteral("Start")}, 60s);
    const auto watching = [](auto task, auto* result) -> QCoro::Task<void> {
        *result = co_await task;
    }(std::move(asking), &answer);
    runUntil([this] { return portal.count("Start") == 1; });
    portal.end();
    runUntil([&answer] { return answer.has_value(); });
    EXPECT_EQ(answer->outcome, Outcome::missing);
    runUntil([&ends] { return ends == 1; });
    portal.responses.clear();
    portal.begin();
    runUntil([&begins] { return begins == 1; });
    EXPECT_EQ(asked().outcome, Outcome::given);
    EXPECT_EQ(portal.count("Register"), 2);
}

TEST_F(PortalLinkTest, TellsWhatThePortalHas) {
    portal.versions = {{QStringLiteral("org.freedesktop.portal.RemoteDesktop"), 2}};
    EXPECT_EQ(awaited(link->survey()), (PortalSurvey{0, 2}));
    EXPECT_EQ(portal.calls[0].member, u"Register");
    portal.end();
    EXPECT_EQ(awaited(link->survey()), PortalSurvey());
}

TEST_F(PortalLinkTest, TheProgramMayEndWhileThePortalIsAsked) {
    portal.responses[QStringLiteral("Get")].isSilent = true;
    portal.versions = {{QStringLiteral("org.freedesktop.portal.RemoteDesktop"), 2}};
    bool isOver = false;
    const auto watching = [](auto task, bool* over) -> QCoro::Task<void> {
        const PortalSurvey survey = co_await task;
        EXPECT_EQ(survey, PortalSurvey());
        *over = true;
    }(link->survey(), &isOver);
    runUntil([this] { return portal.count("Get") == 1; });
    link.reset();
    portal.end();
    runUntil([&isOver] { return isOver; });
}

TEST_F(PortalLinkTest, ASessionIsOpenedAndClosed) {
    const QString session = awaited(link->openSession(interface));
    EXPECT_TRUE(session.startsWith(u"/org/freedesktop/portal/desktop/session/")) << session.toStdString();
    link->closeSession(session);
    runUntil([this] { return portal.count("Close") == 1; });
    EXPECT_EQ(portal.last("Close").path, session);
}

TEST_F(PortalLinkTest, ARefusedSessionIsNone) {
    portal.responses[QStringLiteral("CreateSession")].code = 2;
    EXPECT_EQ(awaited(link->openSession(interface)), QString());
}

} // namespace vellumry
