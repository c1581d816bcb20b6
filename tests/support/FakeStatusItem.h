// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/StatusItem.h"

namespace vellumry {

/// A desktop's panel that shows the icon or has no place for it.
class FakeStatusItem : public StatusItem {
public:
    bool isInstalled = false;
    bool hasPlace = true;
    int changes = 0; ///< how often the menu was said to be another one

    void install() override { isInstalled = true; }
    void menuChanged() override { ++changes; }
    [[nodiscard]] bool isShown() const override { return isInstalled && hasPlace; }
};

} // namespace vellumry
