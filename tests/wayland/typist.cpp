// SPDX-License-Identifier: GPL-3.0-or-later
// Types in a headless Wayland session as a user with a US keyboard would.
//
//   typist serve SOCKET          holds the keyboard; "ready" on standard output once it is there
//   typist SOCKET KEYS…          presses chords one after the other: ctrl+v, return, shift+insert, …
//   typist SOCKET text 'words'   types words
//
// The keyboard is held open between the calls: one that comes and goes makes the focus of some compositors flicker.
#include "MutterKeyboard.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QHash>
#include <cstdio>
#include <cstring>
#include <linux/input-event-codes.h>
#include <memory>
#include <optional>
#include <poll.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>
#include <vector>

#include <fake-input-client-protocol.h>
#include <virtual-keyboard-unstable-v1-client-protocol.h>
#include <wayland-client.h>
#include <xkbcommon/xkbcommon.h>

namespace {

constexpr int shiftMask = 1;
constexpr int controlMask = 4;
constexpr int altMask = 8;
constexpr int superMask = 64;
constexpr int betweenKeys = 8; // milliseconds; faster than any user

struct Modifier {
    quint32 key;
    quint32 mask;
};

const QHash<QByteArray, Modifier> modifiers{{"ctrl", {KEY_LEFTCTRL, controlMask}},
                                            {"shift", {KEY_LEFTSHIFT, shiftMask}},
                                            {"alt", {KEY_LEFTALT, altMask}},
                                            {"super", {KEY_LEFTMETA, superMask}}};

const QHash<QByteArray, quint32> namedKeys{{"return", KEY_ENTER},
                                           {"escape", KEY_ESC},
                                           {"tab", KEY_TAB},
                                           {"insert", KEY_INSERT},
                                           {"up", KEY_UP},
                                           {"down", KEY_DOWN},
                                           {"left", KEY_LEFT},
                                           {"right", KEY_RIGHT},
                                           {"home", KEY_HOME},
                                           {"end", KEY_END},
                                           {"backspace", KEY_BACKSPACE},
                                           {"delete", KEY_DELETE},
                                           {"space", KEY_SPACE},
                                           {"comma", KEY_COMMA},
                                           {"slash", KEY_SLASH}};

/// The key of a character on a US keyboard, and whether it needs Shift.
std::optional<std::pair<quint32, bool>> keyOf(char character) {
    static const std::vector<std::pair<quint32, const char*>> rows{
        {KEY_GRAVE, "`~"},      {KEY_1, "1!"},    {KEY_2, "2@"},         {KEY_3, "3#"},
        {KEY_4, "4$"},          {KEY_5, "5%"},    {KEY_6, "6^"},         {KEY_7, "7&"},
        {KEY_8, "8*"},          {KEY_9, "9("},    {KEY_0, "0)"},         {KEY_MINUS, "-_"},
        {KEY_EQUAL, "=+"},      {KEY_Q, "qQ"},    {KEY_W, "wW"},         {KEY_E, "eE"},
        {KEY_R, "rR"},          {KEY_T, "tT"},    {KEY_Y, "yY"},         {KEY_U, "uU"},
        {KEY_I, "iI"},          {KEY_O, "oO"},    {KEY_P, "pP"},         {KEY_LEFTBRACE, "[{"},
        {KEY_RIGHTBRACE, "]}"}, {KEY_A, "aA"},    {KEY_S, "sS"},         {KEY_D, "dD"},
        {KEY_F, "fF"},          {KEY_G, "gG"},    {KEY_H, "hH"},         {KEY_J, "jJ"},
        {KEY_K, "kK"},          {KEY_L, "lL"},    {KEY_SEMICOLON, ";:"}, {KEY_APOSTROPHE, "'\""},
        {KEY_BACKSLASH, "\\|"}, {KEY_Z, "zZ"},    {KEY_X, "xX"},         {KEY_C, "cC"},
        {KEY_V, "vV"},          {KEY_B, "bB"},    {KEY_N, "nN"},         {KEY_M, "mM"},
        {KEY_COMMA, ",<"},      {KEY_DOT, ".>"},  {KEY_SLASH, "/?"},     {KEY_SPACE, "  "},
        {KEY_ENTER, "\n\n"},    {KEY_TAB, "\t\t"}};
    for (const auto& [key, characters] : rows) {
        if (characters[0] == character || characters[1] == character)
            return std::pair(key, characters[0] != character);
    }
    return std::nullopt;
}

class Keyboard {
public:
    bool open() {
        m_display = wl_display_connect(nullptr);
        if (m_display == nullptr)
            return false;
        wl_registry* registry = wl_display_get_registry(m_display);
        static constexpr wl_registry_listener listener{
            [](void* data, wl_registry* from, uint32_t name, const char* interface, uint32_t version) {
                static_cast<Keyboard*>(data)->bind(from, name, interface, version);
            },
            [](void*, wl_registry*, uint32_t) {}};
        wl_registry_add_listener(registry, &listener, this);
        wl_display_roundtrip(m_display);
        if (m_manager != nullptr && m_seat != nullptr)
            makeVirtual();
        if (m_fake != nullptr)
            org_kde_kwin_fake_input_authenticate(m_fake, "typist", "tests");
        wl_display_roundtrip(m_display);
        return m_virtual != nullptr || m_fake != nullptr || m_mutter.open();
    }

    void press(quint32 key, bool isDown) {
        if (m_mutter.isOpen())
            m_mutter.press(key, isDown);
        else if (m_fake != nullptr)
            org_kde_kwin_fake_input_keyboard_key(m_fake, key, isDown ? 1 : 0);
        else
            zwp_virtual_keyboard_v1_key(m_virtual, m_time += betweenKeys, key, isDown ? 1 : 0);
    }

    void chord(quint32 key, const std::vector<Modifier>& held) {
        quint32 mask = 0;
        for (const Modifier& modifier : held) {
            press(modifier.key, true);
            setModifiers(mask |= modifier.mask);
        }
        press(key, true);
        pause();
        press(key, false);
        for (const Modifier& modifier : held)
            press(modifier.key, false);
        setModifiers(0);
        pause();
    }

    [[nodiscard]] int descriptor() const { return wl_display_get_fd(m_display); }
    bool dispatch() { return wl_display_dispatch(m_display) >= 0; }

private:
    void bind(wl_registry* registry, uint32_t name, const char* interface, uint32_t version) {
        const auto is = [interface](const wl_interface& known) { return std::strcmp(interface, known.name) == 0; };
        if (is(wl_seat_interface) && m_seat == nullptr)
            m_seat = static_cast<wl_seat*>(wl_registry_bind(registry, name, &wl_seat_interface, 1));
        else if (is(zwp_virtual_keyboard_manager_v1_interface))
            m_manager = static_cast<zwp_virtual_keyboard_manager_v1*>(
                wl_registry_bind(registry, name, &zwp_virtual_keyboard_manager_v1_interface, 1));
        else if (is(org_kde_kwin_fake_input_interface) && version >= 4)
            m_fake = static_cast<org_kde_kwin_fake_input*>(
                wl_registry_bind(registry, name, &org_kde_kwin_fake_input_interface, 4));
    }

    void makeVirtual() {
        m_virtual = zwp_virtual_keyboard_manager_v1_create_virtual_keyboard(m_manager, m_seat);
        xkb_context* context = xkb_context_new(XKB_CONTEXT_NO_FLAGS);
        const xkb_rule_names names{"evdev", "pc105", "us", nullptr, nullptr};
        xkb_keymap* keymap = xkb_keymap_new_from_names(context, &names, XKB_KEYMAP_COMPILE_NO_FLAGS);
        char* text = xkb_keymap_get_as_string(keymap, XKB_KEYMAP_FORMAT_TEXT_V1);
        const std::size_t size = std::strlen(text) + 1;
        const int file = memfd_create("keymap", MFD_CLOEXEC);
        if (write(file, text, size) == ssize_t(size))
            zwp_virtual_keyboard_v1_keymap(m_virtual, WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1, file, uint32_t(size));
        wl_display_roundtrip(m_display);
        close(file);
        std::free(text);
        xkb_keymap_unref(keymap);
        xkb_context_unref(context);
    }

    void setModifiers(quint32 mask) {
        if (m_virtual != nullptr)
            zwp_virtual_keyboard_v1_modifiers(m_virtual, mask, 0, 0, 0);
    }

    /// Until the compositor has taken it in, and for as long as fingers take at least.
    void pause() {
        wl_display_roundtrip(m_display);
        poll(nullptr, 0, betweenKeys);
    }

    wl_display* m_display = nullptr;
    wl_seat* m_seat = nullptr;
    zwp_virtual_keyboard_manager_v1* m_manager = nullptr;
    zwp_virtual_keyboard_v1* m_virtual = nullptr;
    org_kde_kwin_fake_input* m_fake = nullptr;
    MutterKeyboard m_mutter;
    uint32_t m_time = 0;
};

bool typeText(Keyboard& keyboard, const QByteArray& text) {
    for (const char character : text) {
        const auto key = keyOf(character);
        if (!key)
            return false;
        keyboard.chord(key->first, key->second ? std::vector{modifiers["shift"]} : std::vector<Modifier>());
    }
    return true;
}

bool typeChord(Keyboard& keyboard, const QByteArray& word) {
    QByteArrayList parts = word.toLower().split('+');
    const QByteArray last = parts.takeLast();
    std::vector<Modifier> held;
    for (const QByteArray& part : parts) {
        if (!modifiers.contains(part))
            return false;
        held.push_back(modifiers[part]);
    }
    std::optional<quint32> key;
    if (namedKeys.contains(last))
        key = namedKeys[last];
    else if (const auto found = last.size() == 1 ? keyOf(last.front()) : std::nullopt)
        key = found->first;
    if (!key)
        return false;
    keyboard.chord(*key, held);
    return true;
}

bool obey(Keyboard& keyboard, QByteArrayList words) {
    if (!words.isEmpty() && words.front() == "text")
        return typeText(keyboard, words.mid(1).join(' '));
    for (const QByteArray& word : words) {
        if (!typeChord(keyboard, word))
            return false;
    }
    return true;
}

sockaddr_un addressOf(const char* path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, path, sizeof address.sun_path - 1);
    return address;
}

int serve(const char* path) {
    Keyboard keyboard;
    if (!keyboard.open()) {
        std::fputs("typist: the compositor has no way to type\n", stderr);
        return 1;
    }
    const int listening = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const sockaddr_un address = addressOf(path);
    if (bind(listening, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 || listen(listening, 8) != 0)
        return 1;
    std::puts("ready");
    std::fflush(stdout);
    for (;;) {
        pollfd descriptors[2]{{listening, POLLIN, 0}, {keyboard.descriptor(), POLLIN, 0}};
        (void)poll(descriptors, 2, -1);
        if (descriptors[1].revents != 0 && !keyboard.dispatch())
            return 0;
        if (descriptors[0].revents == 0)
            continue;
        const int peer = accept(listening, nullptr, nullptr);
        QByteArray asked;
        char buffer[4096];
        for (ssize_t got = 0; (got = read(peer, buffer, sizeof buffer)) > 0;)
            asked.append(buffer, got);
        const char answer = obey(keyboard, asked.split('\0')) ? 'y' : 'n';
        (void)!write(peer, &answer, 1);
        close(peer);
    }
}

int ask(const char* path, const QByteArrayList& words) {
    const int peer = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const sockaddr_un address = addressOf(path);
    const QByteArray asked = words.join('\0');
    char answer = 'n';
    const bool isSent = connect(peer, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
                        write(peer, asked.constData(), std::size_t(asked.size())) == asked.size();
    shutdown(peer, SHUT_WR);
    return isSent && read(peer, &answer, 1) == 1 && answer == 'y' ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3)
        return 2;
    if (std::strcmp(argv[1], "serve") == 0)
        return serve(argv[2]);
    QByteArrayList words;
    for (int i = 2; i < argc; ++i)
        words.append(argv[i]);
    return ask(argv[1], words);
}
