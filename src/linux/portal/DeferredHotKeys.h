// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/display/HotKeyRegistrar.h"

#include <QObject>
#include <map>
#include <memory>

namespace vellumry {

/// Keys whose registrar is known later: the program does not wait for a portal to say what it can do. Main thread.
class DeferredHotKeys final : public QObject, public HotKeyRegistrar {
    Q_OBJECT
public:
    DeferredHotKeys() = default;

    /// All keys are its from now on, those that were grabbed before first. Once.
    void choose(std::unique_ptr<HotKeyRegistrar> chosen);

    /// True before the choice.
    [[nodiscard]] bool hasKeys() const override;
    [[nodiscard]] OwnBindings ownBindings() const override;
    void announce(quint32 id, const HotKeyPurpose& purpose) override;
    /// True before the choice: what is refused then is told in the log.
    [[nodiscard]] bool grab(quint32 id, KeyCode keyCode, Modifiers modifiers) override;
    void release(quint32 id) override;

private:
    struct Wish {
        HotKeyPurpose purpose{};
        KeyCode keyCode{};
        Modifiers modifiers{};
    };

    std::unique_ptr<HotKeyRegistrar> m_chosen;
    std::map<quint32, HotKeyPurpose> m_purposes; ///< of keys that are not grabbed yet
    std::map<quint32, Wish> m_wishes;
};

} // namespace vellumry
