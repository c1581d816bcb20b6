// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/keys/WaylandKeymap.h"

#include "linux/wayland/Descriptor.h"

#include <cstdlib>
#include <sys/mman.h>

#include <xkbcommon/xkbcommon.h>

namespace vellumry {

namespace {

constexpr quint32 firstKey = 1;
constexpr quint32 lastKey = 247; // evdev codes that XKB has numbers for

WaylandPointer<xkb_context> makeContext() {
    return owned(xkb_context_new(XKB_CONTEXT_NO_FLAGS), &xkb_context_unref);
}

} // namespace

struct WaylandKeymap::Listeners {
    static WaylandKeymap& self(void* data) { return *static_cast<WaylandKeymap*>(data); }
    static void capabilities(void* data, wl_seat*, quint32 value) { self(data).takeCapabilities(value); }
    static void name(void*, wl_seat*, const char*) {}
    static void keymap(void* data, wl_keyboard*, quint32 format, int32_t descriptor, quint32 size) {
        if (format == WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1)
            self(data).takeKeymap(descriptor, size);
        close(descriptor);
    }
    static void enter(void*, wl_keyboard*, quint32, wl_surface*, wl_array*) {}
    static void leave(void*, wl_keyboard*, quint32, wl_surface*) {}
    static void key(void*, wl_keyboard*, quint32, quint32, quint32, quint32) {}
    static void modifiers(void*, wl_keyboard*, quint32, quint32, quint32, quint32, quint32) {}
    static void repeat(void*, wl_keyboard*, int32_t, int32_t) {}

    static constexpr wl_seat_listener seat{capabilities, name};
    static constexpr wl_keyboard_listener keyboard{keymap, enter, leave, key, modifiers, repeat};
};

WaylandKeymap::WaylandKeymap(std::shared_ptr<WaylandConnection> connection)
    : m_connection(std::move(connection)) {
    if (m_connection->seat() != nullptr) {
        wl_seat_add_listener(m_connection->seat(), &Listeners::seat, this);
        // The seat's capabilities, then the keyboard's map.
        m_connection->roundTrip();
        m_connection->roundTrip();
    }
    if (m_keymap)
        return;
    const auto context = makeContext();
    const xkb_rule_names names{"evdev", "pc105", "us", nullptr, nullptr};
    use(xkb_keymap_new_from_names(context.get(), &names, XKB_KEYMAP_COMPILE_NO_FLAGS));
}

WaylandKeymap::~WaylandKeymap() = default;

void WaylandKeymap::takeCapabilities(quint32 capabilities) {
    const bool hasKeyboard = (capabilities & WL_SEAT_CAPABILITY_KEYBOARD) != 0;
    if (!hasKeyboard) {
        m_keyboard.reset();
        return;
    }
    if (m_keyboard)
        return;
    m_keyboard = owned(wl_seat_get_keyboard(m_connection->seat()), &wl_keyboard_destroy);
    wl_keyboard_add_listener(m_keyboard.get(), &Listeners::keyboard, this);
    m_connection->flush();
}

void WaylandKeymap::takeKeymap(int descriptor, quint32 size) {
    void* map = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, descriptor, 0);
    if (map == MAP_FAILED)
        return;
    const auto context = makeContext();
    // Up to the NUL at its end, which `size` counts.
    use(xkb_keymap_new_from_buffer(context.get(), static_cast<const char*>(map),
                                   qstrnlen(static_cast<char*>(map), size), XKB_KEYMAP_FORMAT_TEXT_V1,
                                   XKB_KEYMAP_COMPILE_NO_FLAGS));
    munmap(map, size);
}

void WaylandKeymap::use(xkb_keymap* keymap) {
    if (keymap == nullptr)
        return;
    m_keymap = owned(keymap, &xkb_keymap_unref);
    m_layout = 0;
    for (quint32 layout = 0; layout < xkb_keymap_num_layouts(keymap); ++layout) {
        for (quint32 key = firstKey; key <= lastKey; ++key) {
            const auto letter = typed(key, layout);
            if (letter >= u'a' && letter <= u'z') {
                m_layout = layout;
                return;
            }
        }
    }
}

QByteArray WaylandKeymap::text() const {
    char* text = m_keymap ? xkb_keymap_get_as_string(m_keymap.get(), XKB_KEYMAP_FORMAT_TEXT_V1) : nullptr;
    const QByteArray copy(text);
    std::free(text);
    return copy;
}

std::optional<char16_t> WaylandKeymap::typed(quint32 evdevCode, quint32 layout) const {
    const xkb_keysym_t* symbols = nullptr;
    if (!m_keymap ||
        xkb_keymap_key_get_syms_by_level(m_keymap.get(), evdevCode + keycodes::xOffset, layout, 0, &symbols) != 1)
        return std::nullopt;
    const quint32 character = xkb_keysym_to_utf32(symbols[0]);
    if (character < 0x20 || character > 0xFFFF || character == 0x7F)
        return std::nullopt;
    return QChar(char16_t(character)).toLower().unicode();
}

std::optional<QString> WaylandKeymap::charactersFor(quint32 evdevCode) const {
    const auto character = typed(evdevCode, m_layout);
    return character ? std::optional(QString(QChar(*character))) : std::nullopt;
}

KeyPositions WaylandKeymap::positions() const {
    return KeyPositions([this](quint32 evdevCode) { return typed(evdevCode, m_layout); });
}

quint32 WaylandKeymap::keyTyping(char16_t letter, quint32 place) const {
    if (typed(place, m_layout) == letter)
        return place;
    for (quint32 key = firstKey; key <= lastKey; ++key) {
        if (typed(key, m_layout) == letter)
            return key;
    }
    return place;
}

} // namespace vellumry
