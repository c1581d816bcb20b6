// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>
#include <qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace vellumry {

class ViewEngine;

/// The view engine as the views know it: what they all follow, and the words of the user's language. Made by the QML
/// engine, which belongs to the view engine.
class Views : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool dark READ isDark NOTIFY darkChanged)

public:
    explicit Views(const ViewEngine& engine);
    static Views* create(QQmlEngine* engine, QJSEngine*);

    [[nodiscard]] bool isDark() const;
    /// `key` in the user's language.
    Q_INVOKABLE [[nodiscard]] QString words(const QString& key) const;

Q_SIGNALS:
    void darkChanged();

private:
    const ViewEngine* m_engine;
};

} // namespace vellumry
