// SPDX-License-Identifier: GPL-3.0-or-later
#include "wayland/MutterSelection.h"

#include "linux/gnome/VariantStrings.h"

namespace vellumry {

namespace {

using namespace std::chrono_literals;

constexpr auto patience = 60s;
const PolledBus::Object mutter{"org.gnome.Mutter.RemoteDesktop", "/org/gnome/Mutter/RemoteDesktop",
                               "org.gnome.Mutter.RemoteDesktop"};

GVariant* optionsWith(const QStringList& types) {
    GVariantBuilder options;
    g_variant_builder_init(&options, G_VARIANT_TYPE("a{sv}"));
    if (!types.isEmpty())
        g_variant_builder_add(&options, "{sv}", "mime-types", variantstrings::of(types));
    return g_variant_new("(a{sv})", &options);
}

} // namespace

/// Each reading has a session of its own: one session reads one thing at a time.
class MutterSelection::MutterOffer final : public Offer {
public:
    MutterOffer(MutterSelection& selection, GVariant* values)
        : m_selection(selection) {
        GVariant* options = g_variant_get_child_value(values, 0);
        GVariant* types = g_variant_lookup_value(options, "mime-types", G_VARIANT_TYPE("(as)"));
        if (types != nullptr) {
            for (const QString& type : variantstrings::in(types, 0))
                addType(type);
            g_variant_unref(types);
        }
        g_variant_unref(options);
    }
    [[nodiscard]] Descriptor receive(const QString& mimeType) const override {
        const PolledBus::Object session = m_selection.openSession();
        bool isAnswered = false;
        Descriptor pipe;
        m_selection.m_bus->call(session, "SelectionRead", g_variant_new("(s)", mimeType.toUtf8().constData()),
                                [&](GVariant*, GUnixFDList* list) {
                                    isAnswered = true;
                                    if (list != nullptr)
                                        pipe = Descriptor(g_unix_fd_list_get(list, 0, nullptr));
                                });
        m_selection.m_bus->waitUntil([&] { return isAnswered; }, patience);
        return pipe;
    }

private:
    MutterSelection& m_selection;
};

struct MutterSelection::MutterSource final : public Source {
    ~MutterSource() override {
        if (control != nullptr && control->m_own == this)
            control->setSelection(nullptr);
    }
    QStringList types;
    MutterSelection* control = nullptr;
};

std::unique_ptr<SelectionControl> MutterSelection::create() {
    auto bus = PolledBus::create();
    if (!bus || !(*bus)->hasOwner(mutter.service.constData()))
        return nullptr;
    std::unique_ptr<MutterSelection> selection(new MutterSelection(std::move(*bus)));
    selection->m_session = selection->openSession();
    return selection;
}

PolledBus::Object MutterSelection::openSession() {
    PolledBus::Object session{mutter.service, {}, "org.gnome.Mutter.RemoteDesktop.Session"};
    bool isAnswered = false;
    m_bus->call(mutter, "CreateSession", nullptr, [&](GVariant* values, GUnixFDList*) {
        isAnswered = true;
        const char* path = "";
        if (values != nullptr)
            g_variant_get(values, "(&o)", &path);
        session.path = path;
    });
    m_bus->waitUntil([&] { return isAnswered; }, patience);
    if (m_session.path.isEmpty())
        m_bus->listen(session, [this](const char* name, GVariant* values) { hear(name, values); });
    isAnswered = false;
    m_bus->call(session, "EnableClipboard", optionsWith({}), [&](GVariant*, GUnixFDList*) { isAnswered = true; });
    m_bus->waitUntil([&] { return isAnswered; }, patience);
    return session;
}

void MutterSelection::hear(const char* name, GVariant* values) {
    const QByteArrayView signal(name);
    if (signal == "SelectionOwnerChanged") {
        auto offer = std::make_unique<MutterOffer>(*this, values);
        const bool isEmpty = offer->mimeTypes().isEmpty();
        if (onSelection)
            onSelection(isEmpty ? nullptr : std::move(offer));
    } else if (signal == "SelectionTransfer") {
        const char* type = nullptr;
        quint32 serial = 0;
        g_variant_get(values, "(&su)", &type, &serial);
        send(QString::fromUtf8(type), serial);
    }
}

void MutterSelection::send(const QString& type, quint32 serial) {
    m_bus->call(m_session, "SelectionWrite", g_variant_new("(u)", serial),
                [this, type, serial](GVariant*, GUnixFDList* list) {
                    Descriptor pipe(list != nullptr ? g_unix_fd_list_get(list, 0, nullptr) : -1);
                    m_bus->call(m_session, "SelectionWriteDone", g_variant_new("(ub)", serial, TRUE), nullptr);
                    if (pipe.isOpen() && m_own != nullptr && m_own->onSend)
                        m_own->onSend(type, std::move(pipe));
                });
}

std::unique_ptr<SelectionControl::Source> MutterSelection::makeSource(const QStringList& mimeTypes) {
    auto source = std::make_unique<MutterSource>();
    source->types = mimeTypes;
    return source;
}

void MutterSelection::setSelection(const Source* source) {
    m_own = const_cast<MutterSource*>(static_cast<const MutterSource*>(source));
    if (m_own != nullptr)
        m_own->control = this;
    m_bus->call(m_session, "SetSelection", optionsWith(m_own != nullptr ? m_own->types : QStringList()), nullptr);
}

void MutterSelection::sync(std::function<void()> done) {
    PolledBus::Object properties = mutter;
    properties.interface = "org.freedesktop.DBus.Properties";
    m_bus->call(properties, "Get", g_variant_new("(ss)", mutter.interface.constData(), "SupportedDeviceTypes"),
                [done = std::move(done)](GVariant*, GUnixFDList*) { done(); });
}

bool MutterSelection::roundTrip() {
    bool isDone = false;
    sync([&] { isDone = true; });
    return m_bus->waitUntil([&] { return isDone; }, patience);
}

} // namespace vellumry
