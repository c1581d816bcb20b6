// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/windows/XSettings.h"

#include "linux/x11/windows/XErrorTrap.h"

#include <QtEndian>
#include <utility>
#include <variant>

#include <X11/Xlib.h>

namespace vellumry::xsettings {

namespace {

constexpr long mostWords = 64 * 1024;

/// Walks over the bytes and stays within them; once it has run out, everything reads as nothing.
class Cursor {
public:
    explicit Cursor(QByteArrayView bytes)
        : m_left(bytes) {}

    QByteArrayView take(qsizetype count) {
        if (count < 0 || count > m_left.size()) {
            m_left = {};
            m_isSound = false;
            return {};
        }
        const QByteArrayView taken = m_left.first(count);
        m_left = m_left.sliced(count);
        return taken;
    }
    template <typename Number>
    Number number() {
        const QByteArrayView bytes = take(sizeof(Number));
        if (bytes.isEmpty())
            return 0;
        return m_isBig ? qFromBigEndian<Number>(bytes.data()) : qFromLittleEndian<Number>(bytes.data());
    }
    /// Texts fill up to the next multiple of four.
    QByteArrayView padded(qsizetype count) {
        const QByteArrayView taken = take(count);
        (void)take(-count & 3);
        return taken;
    }
    void setBig(bool isBig) { m_isBig = isBig; }
    [[nodiscard]] bool isSound() const { return m_isSound; }

private:
    QByteArrayView m_left;
    bool m_isBig = false;
    bool m_isSound = true;
};

enum Kind : quint8 { integerKind = 0, stringKind = 1, colorKind = 2 };

using Value = std::variant<std::monostate, qint32, QByteArray>;

/// The value under `name`; nothing for a colour and where the bytes are no such property.
Value valueIn(QByteArrayView property, QByteArrayView name) {
    Cursor cursor(property);
    const QByteArrayView order = cursor.take(4);
    if (order.isEmpty())
        return {};
    cursor.setBig(order.front() == MSBFirst);
    (void)cursor.number<quint32>(); // how often it was changed
    const auto count = cursor.number<quint32>();
    for (quint32 index = 0; index < count && cursor.isSound(); ++index) {
        const auto kind = cursor.number<quint8>();
        (void)cursor.take(1);
        const bool isNamed = cursor.padded(cursor.number<quint16>()) == name;
        (void)cursor.number<quint32>(); // when this one was changed
        Value value;
        if (kind == integerKind)
            value = cursor.number<qint32>();
        else if (kind == stringKind)
            value = cursor.padded(cursor.number<quint32>()).toByteArray();
        else if (kind == colorKind)
            (void)cursor.take(8);
        else
            return {};
        if (isNamed && cursor.isSound())
            return value;
    }
    return {};
}

template <typename Kept>
std::optional<Kept> kept(Value value) {
    Kept* found = std::get_if<Kept>(&value);
    return found ? std::optional(std::move(*found)) : std::nullopt;
}

} // namespace

std::optional<qint32> integerIn(QByteArrayView property, QByteArrayView name) {
    return kept<qint32>(valueIn(property, name));
}

std::optional<QByteArray> textIn(QByteArrayView property, QByteArrayView name) {
    return kept<QByteArray>(valueIn(property, name));
}

XWindow manager(XlibConnection& connection) {
    const QByteArray selection = "_XSETTINGS_S" + QByteArray::number(connection.screen());
    return XGetSelectionOwner(connection.display(), connection.atom(selection.constData()));
}

QByteArray property(XlibConnection& connection) {
    Display* display = connection.display();
    const XWindow window = manager(connection);
    if (window == 0)
        return {};
    const XAtom name = connection.atom("_XSETTINGS_SETTINGS");
    XAtom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char* bytes = nullptr;
    XErrorTrap trap(display);
    XGetWindowProperty(display, window, name, 0, mostWords, 0, name, &type, &format, &count, &left, &bytes);
    QByteArray value;
    if (bytes != nullptr && format == 8)
        value = QByteArray(reinterpret_cast<const char*>(bytes), qsizetype(count));
    if (bytes != nullptr)
        XFree(bytes);
    return value;
}

std::optional<qint32> integer(XlibConnection& connection, QByteArrayView name) {
    return integerIn(property(connection), name);
}

} // namespace vellumry::xsettings
