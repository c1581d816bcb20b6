// SPDX-License-Identifier: GPL-3.0-or-later
#include "torture/TortureModel.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

constexpr TortureState written(int version, Date used) {
    return {true, version, false, std::nullopt, used};
}

class TortureModelTest : public testing::Test {
protected:
    static TortureStep write(int clip, const TortureState& state) {
        TortureStep step;
        step.clip = clip;
        step.written = state;
        return step;
    }
    static TortureStep remove(int clip, std::vector<int> others = {}) {
        TortureStep step;
        step.kind = TortureStep::Kind::remove;
        step.clip = clip;
        step.others = std::move(others);
        return step;
    }
    TortureModel m_model;
};

TEST_F(TortureModelTest, WhatWasAcknowledgedMustBeThereAsItWas) {
    m_model.done(write(1, written(7, 10)));
    EXPECT_EQ(m_model.settle({{1, written(7, 10)}}), "");
    EXPECT_NE(m_model.settle({{1, written(6, 10)}}), "");
    m_model.done(write(1, written(8, 11)));
    EXPECT_NE(m_model.settle({}), "") << "it is lost";
}

TEST_F(TortureModelTest, WhatWasDeletedMayNotComeBack) {
    m_model.done(write(1, written(7, 10)));
    m_model.done(write(2, written(8, 11)));
    m_model.done(remove(1, {1, 2}));
    TortureModel model = m_model;
    EXPECT_EQ(model.settle({}), "");
    EXPECT_NE(m_model.settle({{2, written(8, 11)}}), "");
}

TEST_F(TortureModelTest, WhatNobodyWroteMayNotBeThere) {
    EXPECT_NE(m_model.settle({{3, written(1, 1)}}), "");
}

TEST_F(TortureModelTest, WhatWasCutShortIsThereAsBeforeOrAsAfter) {
    m_model.done(write(1, written(7, 10)));
    for (const auto& found : {written(7, 10), written(8, 11)}) {
        TortureModel model = m_model;
        model.maybeDone(write(1, written(8, 11)));
        EXPECT_EQ(model.settle({{1, found}}), "");
        EXPECT_EQ(model.settle({{1, found}}), "") << "and stays so";
    }
    TortureModel model = m_model;
    model.maybeDone(write(1, written(8, 11)));
    EXPECT_NE(model.settle({{1, written(7, 11)}}), "") << "half of it is neither";
}

TEST_F(TortureModelTest, ThePinOfASecretIsTwoWrites) {
    TortureState secret = written(7, 10);
    secret.expires = 35;
    TortureStep pin;
    pin.kind = TortureStep::Kind::pin;
    pin.clip = 1;
    pin.written.expires = 35;
    m_model.done(write(1, secret));
    TortureModel cut = m_model;
    cut.maybeDone(pin);
    m_model.done(pin);
    TortureState half = secret;
    half.isPinned = true;
    EXPECT_EQ(cut.settle({{1, half}}), "");
    EXPECT_NE(m_model.settle({{1, half}}), "");
}

TEST_F(TortureModelTest, StepsSurviveTheirLine) {
    TortureStep step = write(12, written(7'000'123, 1010));
    step.written.expires = 1035;
    step.written.isPinned = true;
    step.others = {3, 4};
    const TortureStep read = TortureStep::of(step.line());
    EXPECT_EQ(read.written, step.written);
    EXPECT_EQ(read.clip, 12);
    EXPECT_EQ(read.others, step.others);
    EXPECT_EQ(TortureStep::of(remove(5).line()).kind, TortureStep::Kind::remove);
}

} // namespace
} // namespace vellumry
