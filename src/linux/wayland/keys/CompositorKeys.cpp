// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/keys/CompositorKeys.h"

#include "linux/wayland/Descriptor.h"

#include <chrono>
#include <sys/mman.h>
#include <utility>

#include <fake-input-client-protocol.h>
#include <virtual-keyboard-unstable-v1-client-protocol.h>
#include <xkbcommon/xkbcommon.h>

namespace vellumry {

namespace {

constexpr quint32 isDown = WL_KEYBOARD_KEY_STATE_PRESSED;
constexpr quint32 isUp = WL_KEYBOARD_KEY_STATE_RELEASED;

/// The compositor itself knows what keys mean.
class FakeInput final : public KeyInjector {
public:
    FakeInput(std::shared_ptr<WaylandConnection> connection, org_kde_kwin_fake_input* input)
        : m_connection(std::move(connection))
        , m_input(owned(input, &org_kde_kwin_fake_input_destroy)) {
        org_kde_kwin_fake_input_authenticate(input, "Vellumry", "paste the clip that was chosen");
        m_connection->flush();
    }

    void press(const std::vector<Modifier>& modifiers, quint32 evdevCode) override {
        for (const Modifier& modifier : modifiers)
            key(modifier.evdevCode, isDown);
        key(evdevCode, isDown);
        key(evdevCode, isUp);
        for (auto modifier = modifiers.rbegin(); modifier != modifiers.rend(); ++modifier)
            key(modifier->evdevCode, isUp);
        m_connection->flush();
    }

private:
    void key(quint32 evdevCode, quint32 state) {
        org_kde_kwin_fake_input_keyboard_key(m_input.get(), evdevCode, state);
    }

    std::shared_ptr<WaylandConnection> m_connection;
    WaylandPointer<org_kde_kwin_fake_input> m_input;
};

/// A keyboard of our own, with the user's map, kept for the whole run: one that comes and goes makes the focus flicker.
class VirtualKeyboard final : public KeyInjector {
public:
    VirtualKeyboard(std::shared_ptr<WaylandConnection> connection, std::shared_ptr<WaylandKeymap> keymap,
                    zwp_virtual_keyboard_manager_v1* manager)
        : m_connection(std::move(connection))
        , m_keymap(std::move(keymap))
        , m_keyboard(owned(zwp_virtual_keyboard_manager_v1_create_virtual_keyboard(manager, m_connection->seat()),
                           &zwp_virtual_keyboard_v1_destroy)) {
        zwp_virtual_keyboard_manager_v1_destroy(manager);
        useUsersMap();
        m_connection->flush();
    }

    void press(const std::vector<Modifier>& modifiers, quint32 evdevCode) override {
        useUsersMap();
        const auto context = owned(xkb_context_new(XKB_CONTEXT_NO_FLAGS), &xkb_context_unref);
        const auto keymap = owned(xkb_keymap_new_from_string(context.get(), m_map.constData(),
                                                             XKB_KEYMAP_FORMAT_TEXT_V1, XKB_KEYMAP_COMPILE_NO_FLAGS),
                                  &xkb_keymap_unref);
        quint32 mask = 0;
        for (const Modifier& modifier : modifiers) {
            key(modifier.evdevCode, isDown);
            const quint32 index = keymap ? xkb_keymap_mod_get_index(keymap.get(), modifier.name) : XKB_MOD_INVALID;
            mask |= index == XKB_MOD_INVALID ? 0U : 1U << index;
            setModifiers(mask);
        }
        key(evdevCode, isDown);
        key(evdevCode, isUp);
        for (auto modifier = modifiers.rbegin(); modifier != modifiers.rend(); ++modifier)
            key(modifier->evdevCode, isUp);
        setModifiers(0);
        m_connection->flush();
    }

private:
    void key(quint32 evdevCode, quint32 state) {
        using namespace std::chrono;
        const auto now = duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
        zwp_virtual_keyboard_v1_key(m_keyboard.get(), static_cast<quint32>(now), evdevCode, state);
    }

    void setModifiers(quint32 mask) {
        zwp_virtual_keyboard_v1_modifiers(m_keyboard.get(), mask, 0, 0, m_keymap->layout());
    }

    void useUsersMap() {
        const QByteArray map = m_keymap->text();
        if (map == m_map)
            return;
        m_map = map;
        const auto size = static_cast<std::size_t>(map.size()) + 1;
        const Descriptor file(memfd_create("keymap", MFD_CLOEXEC));
        if (::write(file.get(), map.constData(), size) == static_cast<ssize_t>(size))
            zwp_virtual_keyboard_v1_keymap(m_keyboard.get(), WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1, file.get(),
                                           static_cast<quint32>(size));
    }

    std::shared_ptr<WaylandConnection> m_connection;
    std::shared_ptr<WaylandKeymap> m_keymap;
    WaylandPointer<zwp_virtual_keyboard_v1> m_keyboard;
    QByteArray m_map;
};

} // namespace

std::unique_ptr<KeyInjector> makeCompositorKeys(const std::shared_ptr<WaylandConnection>& connection,
                                                const std::shared_ptr<WaylandKeymap>& keymap) {
    constexpr quint32 withDestructor = 5;
    if (connection->version(org_kde_kwin_fake_input_interface) >= withDestructor)
        return std::make_unique<FakeInput>(
            connection, connection->bind<org_kde_kwin_fake_input>(org_kde_kwin_fake_input_interface, withDestructor));
    auto* manager =
        connection->seat() == nullptr
            ? nullptr
            : connection->bind<zwp_virtual_keyboard_manager_v1>(zwp_virtual_keyboard_manager_v1_interface, 1);
    if (manager == nullptr)
        return nullptr;
    return std::make_unique<VirtualKeyboard>(connection, keymap, manager);
}

} // namespace vellumry
