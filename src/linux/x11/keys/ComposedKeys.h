// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <memory>

struct xkb_compose_state;

namespace vellumry {

/// Dead keys and compose sequences, by the table of the user's locale or their own. It stands in for Qt's "compose"
/// input method, which looks at a key before those in front of it have reached their field: of "né" that is typed while
/// the program is busy, it makes "én". Installed as an event filter of the application, it sees the keys in their
/// order. The table is read with the first key. Main thread.
class ComposedKeys : public QObject {
public:
    /// `locale` is one that setlocale knows, as the environment names it.
    explicit ComposedKeys(QByteArray locale);
    ~ComposedKeys() override;

    /// True where the input method that the environment asks for (the value of QT_IM_MODULE, empty when unset) is no
    /// other than Qt's own, or one that Qt 6 does not have any more, so that this takes its place.
    [[nodiscard]] static bool standInFor(const QByteArray& inputMethod);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Release {
        void operator()(xkb_compose_state* state) const;
    };

    void readTable();
    [[nodiscard]] bool takes(QObject& field, quint32 symbol);
    void forget();

    QByteArray m_locale;
    bool m_isRead = false;
    std::unique_ptr<xkb_compose_state, Release> m_state; ///< null where the locale has no table
    QPointer<QObject> m_field;                           ///< that the sequence has begun in
};

} // namespace vellumry
