// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/PayloadCoding.h"

#include "foundation/PropertyList.h"
#include "support/ListBytes.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;

TEST(PayloadCoding, WritesItemsWithTheirRepresentationsAndOrder) {
    const ClipPayload payload{{{{{u"public.png"_s, "png"}}, QStringList{u"public.png"_s}}, {{}, std::nullopt}}};
    const PropertyList::Dictionary expected{
        {u"items"_s,
         PropertyList::Array{PropertyList::Dictionary{
                                 {u"representations"_s, PropertyList::Dictionary{{u"public.png"_s, QByteArray("png")}}},
                                 {u"order"_s, PropertyList::Array{u"public.png"_s}}},
                             PropertyList::Dictionary{{u"representations"_s, PropertyList::Dictionary()}}}}};
    EXPECT_EQ(PropertyList::fromBytes(encodePayload(payload)), PropertyList(expected));
}

TEST(PayloadCoding, ReadsBackWhatWasWritten) {
    const ClipPayload payload{{{{{u"a"_s, QByteArray(100'000, '\xfe')}, {u"b"_s, ""}}, QStringList()},
                               {{{u"ü"_s, QByteArray("\0\1", 2)}}, std::nullopt},
                               {{}, QStringList{u"x"_s, u"y"_s}}}};
    EXPECT_EQ(decodePayload(encodePayload(payload)), payload);
    EXPECT_EQ(decodePayload(encodePayload({})), ClipPayload());
}

TEST(PayloadCoding, RefusesWhatHasAnotherShape) {
    const auto refused = [](const PropertyList::Dictionary& record) {
        return !decodePayload(written(record)).has_value();
    };
    const auto refusedItem = [&](PropertyList::Dictionary item) {
        return refused({{u"items"_s, PropertyList::Array{std::move(item)}}});
    };
    EXPECT_FALSE(decodePayload("nonsense").has_value());
    EXPECT_TRUE(refused({}));
    EXPECT_TRUE(refused({{u"items"_s, u"x"_s}}));
    EXPECT_TRUE(refused({{u"items"_s, PropertyList::Array{u"x"_s}}}));
    EXPECT_TRUE(refusedItem({}));
    EXPECT_TRUE(refusedItem({{u"representations"_s, PropertyList::Dictionary{{u"a"_s, u"text"_s}}}}));
    EXPECT_TRUE(refusedItem({{u"representations"_s, PropertyList::Dictionary()}, {u"order"_s, u"x"_s}}));
    EXPECT_TRUE(
        refusedItem({{u"representations"_s, PropertyList::Dictionary()}, {u"order"_s, PropertyList::Array{true}}}));
}

} // namespace
} // namespace vellumry
