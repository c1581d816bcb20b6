// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/gnome/ShellSelection.h"

#include "linux/gnome/PolledBus.h"
#include "linux/gnome/ShellNames.h"
#include "linux/gnome/VariantStrings.h"

#include <fcntl.h>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

/// As long as the shell may take at the start, when it has much else to do.
constexpr auto shellTime = 2000ms;
constexpr quint32 kindOurs = 1;
constexpr quint32 kindKept = 2;
const PolledBus::Object clipboard{shell::service, shell::path, "com.vellumry.GnomeShell.Clipboard"};
/// As Plasma's keeper says that it offers again what went with its owner.
const QString replacesEmpty = QStringLiteral("application/x-kde-onlyReplaceEmpty");
const QString plainText = QStringLiteral("text/plain;charset=utf-8");

} // namespace

class ShellSelection::ShellOffer final : public Offer {
public:
    ShellOffer(PolledBus& bus, std::shared_ptr<const Standing> standing, const QStringList& types)
        : m_bus(bus)
        , m_standing(std::move(standing)) {
        for (const QString& type : types)
            addType(type);
    }
    [[nodiscard]] Descriptor receive(const QString& mimeType) const override {
        Pipe pipe = makePipe();
        if (!pipe.writing.isOpen())
            return Descriptor();
        // The shell is never to wait for us.
        fcntl(pipe.writing.get(), F_SETFL, O_NONBLOCK);
        const GObjectPointer<GUnixFDList> list(g_unix_fd_list_new());
        if (g_unix_fd_list_append(list.get(), pipe.writing.get(), nullptr) < 0)
            return Descriptor();
        m_bus.call(clipboard, "Read", g_variant_new("(ush)", m_standing->serial, mimeType.toUtf8().constData(), 0),
                   nullptr, list.get());
        return std::move(pipe.reading);
    }

private:
    PolledBus& m_bus;
    std::shared_ptr<const Standing> m_standing;
};

struct ShellSelection::ShellSource final : public Source {
    ~ShellSource() override {
        if (control != nullptr && control->m_own == this)
            control->m_own = nullptr;
    }
    QStringList types;
    ShellSelection* control = nullptr;
};

bool ShellSelection::isThere() {
    const auto bus = PolledBus::create();
    return bus && (*bus)->hasOwner(shell::service);
}

OrReason<std::unique_ptr<ShellSelection>> ShellSelection::create() {
    auto bus = PolledBus::create();
    if (!bus)
        return std::unexpected(std::move(bus.error()));
    return std::unique_ptr<ShellSelection>(new ShellSelection(std::move(*bus)));
}

ShellSelection::ShellSelection(std::unique_ptr<PolledBus> bus)
    : m_bus(std::move(bus)) {
    // A second copy of the program does not get the name, and ends soon.
    m_isOurName = m_bus->own(shell::clipboardPeer);
    m_bus->listen(clipboard, [this](const char* name, GVariant* values) { hear(name, values); });
    m_bus->watch(shell::service, [this](bool isThere) { follow(isThere); });
}

ShellSelection::~ShellSelection() = default;

bool ShellSelection::isBroken() const {
    return m_bus->isBroken();
}

void ShellSelection::prepareWait(std::vector<pollfd>& descriptors) {
    m_bus->prepareWait(descriptors);
}

void ShellSelection::finishWait(const std::vector<pollfd>& descriptors) {
    m_bus->finishWait(descriptors);
}

void ShellSelection::flush() {
    m_bus->flush();
}

void ShellSelection::follow(bool isThere) {
    m_isKnown = true;
    if (!isThere || !m_isOurName) {
        m_wasAway = m_hasBeenThere;
        m_isFollowing = false;
        if (m_standing)
            m_standing->serial = 0;
        m_unansweredOwns = 0;
        return;
    }
    if (std::exchange(m_isFollowing, true))
        return;
    m_bus->call(clipboard, "Follow", nullptr, nullptr);
}

bool ShellSelection::roundTrip() {
    if (!m_bus->waitUntil([this] { return m_isKnown; }, shellTime))
        return !isBroken();
    bool isDone = !m_isFollowing;
    sync([&isDone] { isDone = true; });
    return m_bus->waitUntil([&isDone] { return isDone; }, shellTime);
}

void ShellSelection::sync(std::function<void()> done) {
    m_bus->call(clipboard, "Sync", nullptr, [done = std::move(done)](GVariant*, GUnixFDList*) { done(); });
}

// Following

void ShellSelection::hear(const char* name, GVariant* values) {
    const QByteArrayView signal(name);
    if (signal == "OwnerChanged" && g_variant_is_of_type(values, G_VARIANT_TYPE("(uasu)"))) {
        quint32 serial = 0;
        quint32 kind = 0;
        g_variant_get_child(values, 0, "u", &serial);
        g_variant_get_child(values, 2, "u", &kind);
        takeChange(serial, variantstrings::in(values, 1), kind);
    } else if (signal == "Wanted" && g_variant_is_of_type(values, G_VARIANT_TYPE("(sub)"))) {
        const char* type = nullptr;
        quint32 request = 0;
        gboolean isForKeeper = FALSE;
        g_variant_get(values, "(&sub)", &type, &request, &isForKeeper);
        send(QString::fromUtf8(type), request, isForKeeper != FALSE);
    }
}

void ShellSelection::takeChange(quint32 serial, const QStringList& types, quint32 kind) {
    const bool wasAway = std::exchange(m_wasAway, false);
    m_hasBeenThere = true;
    if (kind == kindOurs) {
        m_unansweredOwns = std::max(m_unansweredOwns - 1, 0);
        m_standing.reset();
        // Of two that follow each other the last one counts.
        if (m_own != nullptr && m_unansweredOwns == 0)
            tell(std::make_unique<ShellOffer>(*m_bus, std::make_shared<Standing>(), types));
        return;
    }
    if (wasAway && resume(serial, types))
        return;
    // What we have asked to own meanwhile comes after this.
    if (m_unansweredOwns == 0)
        cancelOwn();
    if (types.isEmpty()) {
        m_standing.reset();
        tell(nullptr);
        return;
    }
    m_standing = std::make_shared<Standing>(Standing{serial, types});
    tell(std::make_unique<ShellOffer>(*m_bus, m_standing,
                                      kind == kindKept ? types + QStringList{replacesEmpty} : types));
}

bool ShellSelection::resume(quint32 serial, const QStringList& types) {
    if (m_standing && m_standing->types == types) {
        // The same copy, as far as can be told.
        m_standing->serial = serial;
        return true;
    }
    // GNOME has kept one form of what we owned.
    const bool isOurs =
        !m_ownedTypes.isEmpty() && types.size() <= 1 && (types.isEmpty() || m_ownedTypes.contains(types.front()));
    if (!isOurs)
        return false;
    // Given up meanwhile, its kept form is to go as well.
    const bool isWanted = m_own != nullptr;
    own(m_ownedTypes);
    if (!isWanted)
        setSelection(nullptr);
    return true;
}

void ShellSelection::tell(std::unique_ptr<Offer> offer) const {
    if (onSelection)
        onSelection(std::move(offer));
}

// Owning

std::unique_ptr<SelectionControl::Source> ShellSelection::makeSource(const QStringList& mimeTypes) {
    auto source = std::make_unique<ShellSource>();
    source->types = mimeTypes;
    return source;
}

void ShellSelection::setSelection(const Source* source) {
    if (source == nullptr) {
        m_own = nullptr;
        if (!m_isFollowing)
            return;
        m_ownedTypes.clear();
        m_bus->call(clipboard, "Disown", nullptr, nullptr);
        return;
    }
    // The engine owns it and hands it back for this alone.
    m_own = const_cast<ShellSource*>(static_cast<const ShellSource*>(source));
    m_own->control = this;
    own(m_own->types);
}

void ShellSelection::own(const QStringList& types) {
    m_ownedTypes = types;
    ++m_unansweredOwns;
    m_bus->call(clipboard, "Own", g_variant_new("(@as)", variantstrings::of(types)),
                [this](GVariant* values, GUnixFDList*) {
                    // Refused, while the screen is locked for instance.
                    if (values == nullptr && m_isFollowing) {
                        m_unansweredOwns = std::max(m_unansweredOwns - 1, 0);
                        if (m_unansweredOwns == 0)
                            cancelOwn();
                    }
                });
}

void ShellSelection::cancelOwn() {
    m_ownedTypes.clear();
    ShellSource* const own = std::exchange(m_own, nullptr);
    if (own == nullptr)
        return;
    // The callee destroys the source, and the function with it.
    const auto told = own->onCancelled;
    if (told)
        told();
}

void ShellSelection::send(const QString& type, quint32 request, bool isForKeeper) {
    const auto give = [this, type, isForKeeper](GVariant*, GUnixFDList* descriptors) {
        Descriptor pipe(descriptors != nullptr ? g_unix_fd_list_get(descriptors, 0, nullptr) : -1);
        if (!pipe.isOpen() || m_own == nullptr || !m_own->onSend)
            return;
        m_own->isForKeeper = isForKeeper;
        m_own->onSend(type, std::move(pipe));
        m_own->isForKeeper = false;
    };
    m_bus->call(clipboard, "Take", g_variant_new("(u)", request), give);
}

void ShellSelection::setPrimarySelection(const Source* source) {
    if (source == nullptr) {
        m_bus->call(clipboard, "DisownPrimary", nullptr, nullptr);
        return;
    }
    // An extension can offer one form, whose bytes it has to be given beforehand.
    const std::optional<QByteArray> text = textOf(*source);
    const auto cancelled = source->onCancelled;
    if (!text) {
        cancelled();
        return;
    }
    GVariant* bytes = g_variant_new_fixed_array(G_VARIANT_TYPE_BYTE, text->constData(), gsize(text->size()), 1);
    m_bus->call(clipboard, "OwnPrimary", g_variant_new("(@ay)", bytes), nullptr);
}

/// What fits into a pipe; longer texts are pasted from the clipboard.
std::optional<QByteArray> ShellSelection::textOf(const Source& source) {
    Pipe pipe = makePipe();
    if (!static_cast<const ShellSource&>(source).types.contains(plainText) || !pipe.writing.isOpen())
        return std::nullopt;
    source.onSend(plainText, std::move(pipe.writing));
    QByteArray text;
    char buffer[64 * 1024];
    for (;;) {
        const ssize_t got = ::read(pipe.reading.get(), buffer, sizeof buffer);
        if (got == 0)
            return text;
        if (got < 0)
            return std::nullopt;
        text.append(buffer, got);
    }
}

} // namespace vellumry
