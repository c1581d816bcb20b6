// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/look/PortalSettings.h"

#include "linux/PrivateBus.h"
#include "linux/portal/PortalIntroduction.h"
#include "support/Eventually.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <gtest/gtest.h>
#include <memory>

namespace vellumry {

namespace {

const QString common = QStringLiteral("org.freedesktop.appearance");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString service = QStringLiteral("org.freedesktop.portal.Desktop");

/// As the bus carries it.
struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
};

QDBusArgument& operator<<(QDBusArgument& argument, const Color& color) {
    argument.beginStructure();
    argument << color.red << color.green << color.blue;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, Color& color) {
    argument.beginStructure();
    argument >> color.red >> color.green >> color.blue;
    argument.endStructure();
    return argument;
}

} // namespace

/// A portal on a connection of its own.
class FakePortal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    explicit FakePortal(const QString& address)
        : bus(QDBusConnection::connectToBus(address, QStringLiteral("portal"))) {
        qDBusRegisterMetaType<PortalSettings::Values>();
        qDBusRegisterMetaType<Color>();
        bus.registerObject(path, this, QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
    }
    ~FakePortal() override { QDBusConnection::disconnectFromBus(QStringLiteral("portal")); }

    void begin() { EXPECT_TRUE(bus.registerService(service)); }
    void change(const char* key, const QVariant& value) {
        values[common][QString::fromLatin1(key)] = value;
        Q_EMIT SettingChanged(common, QString::fromLatin1(key), QDBusVariant(value));
    }

    QDBusConnection bus;
    PortalSettings::Values values;
    QStringList askedFor;

public Q_SLOTS:
    PortalSettings::Values ReadAll(const QStringList& spaces) {
        askedFor = spaces;
        return values;
    }

Q_SIGNALS:
    void SettingChanged(const QString& space, const QString& key, const QDBusVariant& value);
};

namespace {

class PortalSettingsTest : public ::testing::Test {
protected:
    PortalSettingsTest() { EXPECT_TRUE(bus.isRunning()); }
    ~PortalSettingsTest() override {
        settings.reset();
        QDBusConnection::disconnectFromBus(QStringLiteral("reader"));
    }

    void start() {
        const auto introduction = std::make_shared<PortalIntroduction>(
            QDBusConnection::connectToBus(bus.address(), QStringLiteral("reader")), std::chrono::seconds(60));
        introduction->begin();
        settings = std::make_unique<PortalSettings>(introduction, [this] { ++changes; });
    }

    PrivateBus bus;
    FakePortal portal{bus.address()};
    std::unique_ptr<PortalSettings> settings;
    int changes = 0;
};

} // namespace

TEST_F(PortalSettingsTest, TellsWhatTheDesktopHasChosen) {
    portal.values[common] = {{QStringLiteral("color-scheme"), 1U},
                             {QStringLiteral("contrast"), 1U},
                             {QStringLiteral("reduced-motion"), 1U},
                             {QStringLiteral("accent-color"), QVariant::fromValue(Color{1, 0.5, 0})}};
    portal.begin();
    start();
    EXPECT_EQ(settings->said(), SaidLook()) << "nothing is waited for";
    ASSERT_TRUE(eventually([this] { return changes > 0; }));
    EXPECT_EQ(settings->said(),
              (SaidLook{.isDark = true, .accent = 0xff8000, .isHighContrast = true, .reducesMotion = true}));
    EXPECT_TRUE(portal.askedFor.contains(common));
}

TEST_F(PortalSettingsTest, AChangeIsFollowed) {
    portal.values[common] = {{QStringLiteral("color-scheme"), 2U}};
    portal.begin();
    start();
    ASSERT_TRUE(eventually([this] { return settings->said().isDark == false; }));
    portal.change("color-scheme", 1U);
    ASSERT_TRUE(eventually([this] { return settings->said().isDark == true; }));
    portal.change("accent-color", QVariant::fromValue(Color{0, 0, 1}));
    ASSERT_TRUE(eventually([this] { return settings->said().accent == 0x0000ffU; }));
    // Out of range: the user has taken the accent back.
    portal.change("accent-color", QVariant::fromValue(Color{-1, -1, -1}));
    ASSERT_TRUE(eventually([this] { return !settings->said().accent; }));
    portal.change("color-scheme", 0U);
    ASSERT_TRUE(eventually([this] { return !settings->said().isDark; }));
}

TEST_F(PortalSettingsTest, APortalThatComesLaterIsAsked) {
    portal.values[common] = {{QStringLiteral("color-scheme"), 1U}};
    start();
    // The bus has answered that nobody is there before it tells of the new owner.
    portal.begin();
    ASSERT_TRUE(eventually([this] { return settings->said().isDark == true; }));
}

TEST(PortalSettingsValues, GnomesOwnNamesCountWhereTheCommonOnesAreSilent) {
    PortalSettings::Values values;
    values[QStringLiteral("org.gnome.desktop.interface")] = {{QStringLiteral("enable-animations"), false},
                                                             {QStringLiteral("text-scaling-factor"), 1.25}};
    values[QStringLiteral("org.gnome.desktop.a11y.interface")] = {{QStringLiteral("high-contrast"), true}};
    EXPECT_EQ(PortalSettings::lookOf(values),
              (SaidLook{.isHighContrast = true, .reducesMotion = true, .textScale = 1.25}));
    values[common] = {{QStringLiteral("contrast"), 0U}, {QStringLiteral("reduced-motion"), 0U}};
    EXPECT_EQ(PortalSettings::lookOf(values).isHighContrast, false);
    EXPECT_EQ(PortalSettings::lookOf(values).reducesMotion, false);
}

TEST(PortalSettingsValues, ValuesOfOtherKindsSayNothing) {
    PortalSettings::Values values;
    values[common] = {{QStringLiteral("color-scheme"), QStringLiteral("dark")},
                      {QStringLiteral("accent-color"), QStringLiteral("blue")}};
    EXPECT_EQ(PortalSettings::lookOf(values), SaidLook());
}

} // namespace vellumry

#include "PortalSettingsTest.moc"
