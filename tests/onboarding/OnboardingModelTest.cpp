// SPDX-License-Identifier: GPL-3.0-or-later
#include "onboarding/OnboardingModel.h"

#include "support/Awaited.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

class OnboardingModelTest : public ::testing::Test {
protected:
    [[nodiscard]] OnboardingModel::Hooks hooks() {
        OnboardingModel::Hooks hooks;
        hooks.isTrusted = [this] { return isTrusted; };
        hooks.requestTrust = [this] { ++requests; };
        hooks.copy = [this](const QString& text) { copies.append(text); };
        hooks.finish = [this](bool launchAtLogin) { finished.append(launchAtLogin); };
        return hooks;
    }
    bool isTrusted = false;
    int requests = 0;
    QStringList copies;
    QList<bool> finished;
};

TEST_F(OnboardingModelTest, GoesThroughItsFourStepsAndThenEnds) {
    using Step = OnboardingModel::Step;
    OnboardingModel model(hooks());
    for (const Step step : {Step::welcome, Step::permission, Step::tryIt, Step::done}) {
        EXPECT_EQ(model.step(), step);
        EXPECT_EQ(finished, QList<bool>());
        model.advance();
    }
    EXPECT_EQ(finished, QList({true})) << "once, with the choice that stands by itself";
    EXPECT_EQ(model.step(), Step::done);
}

TEST_F(OnboardingModelTest, WithoutAPartOfTheDesktopNothingIsOffered) {
    OnboardingModel model(hooks());
    EXPECT_FALSE(model.offersExtension());
    model.switchOnExtension();
    EXPECT_TRUE(model.extensionMessage().isEmpty());
}

TEST_F(OnboardingModelTest, WhatBecameOfThePartOfTheDesktopIsSaid) {
    using Outcome = DesktopExtension::Outcome;
    QStringList said;
    for (const Outcome outcome : {Outcome::on, Outcome::atNextLogin, Outcome::refused}) {
        std::function<void(Outcome)> answer;
        OnboardingModel::Hooks wired = hooks();
        wired.switchOnExtension = [&answer](std::function<void(Outcome)> onAnswered) {
            answer = std::move(onAnswered);
        };
        OnboardingModel model(std::move(wired));
        EXPECT_TRUE(model.offersExtension());
        model.switchOnExtension();
        EXPECT_TRUE(model.offersExtension()) << "before the desktop has answered";
        int changes = 0;
        QObject::connect(&model, &OnboardingModel::changed, &model, [&changes] { ++changes; });
        answer(outcome);
        EXPECT_EQ(changes, 1);
        EXPECT_FALSE(model.offersExtension());
        said.append(model.extensionMessage());
    }
    EXPECT_EQ(said.removeDuplicates(), 0);
    EXPECT_FALSE(said.contains(QString()));
}

TEST_F(OnboardingModelTest, TheChoiceOfTheLastStepIsHandedOn) {
    OnboardingModel model(hooks());
    model.setLaunchAtLogin(false);
    for (int step = 0; step < 4; ++step)
        model.advance();
    EXPECT_EQ(finished, QList({false}));
}

TEST_F(OnboardingModelTest, APermissionThatIsThereAlreadyShowsAtOnce) {
    isTrusted = true;
    const OnboardingModel model(hooks());
    EXPECT_TRUE(model.hasAccessibility());
}

TEST_F(OnboardingModelTest, APermissionGivenElsewhereShowsByItself) {
    OnboardingModel model(hooks());
    model.advance();
    EXPECT_FALSE(model.hasAccessibility());
    isTrusted = true;
    runUntil([&model] { return model.hasAccessibility(); });
    model.requestTrust();
    EXPECT_EQ(requests, 1);
}

TEST_F(OnboardingModelTest, TheThreeStagesStandAloneAndBeginAnew) {
    OnboardingModel model(hooks());
    model.setTypedText(QStringLiteral("so: ") + OnboardingModel::sample());
    EXPECT_TRUE(model.pasted());
    EXPECT_FALSE(model.copied());
    EXPECT_FALSE(model.panelOpened());
    model.copySample();
    EXPECT_EQ(copies, QStringList(OnboardingModel::sample()));
    model.notePanelOpened();
    EXPECT_TRUE(model.copied());
    EXPECT_TRUE(model.panelOpened());
    model.replay();
    EXPECT_FALSE(model.copied() || model.panelOpened() || model.pasted());
    EXPECT_EQ(model.typedText(), QString());
}

TEST_F(OnboardingModelTest, TheLinesForTheUsersOwnKeysAreCopiedAsTheyStand) {
    OnboardingModel::Hooks asked = hooks();
    asked.ownBindings = {QStringLiteral("~/.config/wm"), {QStringLiteral("bind v"), QStringLiteral("bind s")}};
    OnboardingModel model(asked);
    EXPECT_EQ(model.bindingsFile(), QStringLiteral("~/.config/wm"));
    model.copyBindings();
    EXPECT_EQ(copies, QStringList{QStringLiteral("bind v\nbind s")});
    EXPECT_FALSE(model.copied()) << "that is told of the sample alone";
}

TEST_F(OnboardingModelTest, AFolderThatIsClosedIsNamedAndHoldsNothingUp) {
    OnboardingModel::Hooks withFolder = hooks();
    withFolder.askFileAccess = []() -> QCoro::Task<FileAccess::Result> {
        co_return FileAccess::Result{QStringLiteral("Downloads")};
    };
    OnboardingModel model(std::move(withFolder));
    model.checkFiles();
    EXPECT_TRUE(model.fileAccessMessage().contains(QStringLiteral("Downloads")));
    EXPECT_FALSE(model.isFileAccessAllowed());
}

} // namespace
} // namespace vellumry
