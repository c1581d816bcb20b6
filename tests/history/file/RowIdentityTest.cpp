// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/RowIdentity.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;

TEST(RowIdentity, AnIdIsReadInAnyCaseAndInNoOtherForm) {
    const QUuid id(u"0a1b2c3d-4e5f-6071-8293-a4b5c6d7e8f9"_s);
    EXPECT_EQ(rowidentity::uuidOf("0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9"), id);
    EXPECT_EQ(rowidentity::uuidOf("0a1b2c3d-4e5f-6071-8293-a4b5c6d7e8f9"), id);
    EXPECT_EQ(rowidentity::uuidOf("00000000-0000-0000-0000-000000000000"), QUuid());
    for (const char* wrong : {"", "{0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9}", "0A1B2C3D4E5F60718293A4B5C6D7E8F9",
                              "0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8FG", "0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9 ",
                              "0A1B2C3D+4E5F-6071-8293-A4B5C6D7E8F9"})
        EXPECT_EQ(rowidentity::uuidOf(wrong), std::nullopt) << wrong;
}

} // namespace
} // namespace vellumry
