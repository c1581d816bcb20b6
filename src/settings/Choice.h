// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QStringList>
#include <functional>
#include <qqmlregistration.h>
#include <vector>

namespace vellumry {

/// One number out of several, as a picker shows it. A value that is not among them (written by hand) is listed too, in
/// its place. Main thread.
class Choice : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The settings have them.")
    Q_PROPERTY(QList<QString> labels READ labels NOTIFY changed)
    Q_PROPERTY(int index READ index NOTIFY changed)

public:
    using Label = std::function<QString(qint64 value)>;

    /// `offered` in the order in which they are listed: growing, 0 last.
    Choice(std::vector<qint64> offered, Label label, std::function<void(qint64 value)> onChosen);

    [[nodiscard]] QStringList labels() const;
    [[nodiscard]] int index() const;
    /// What is so now.
    void setValue(qint64 value);
    /// The user chose the entry; an index out of range does nothing.
    Q_INVOKABLE void choose(int index);

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] std::vector<qint64> listed() const;

    std::vector<qint64> m_offered;
    Label m_label;
    std::function<void(qint64)> m_onChosen;
    qint64 m_value = 0;
};

} // namespace vellumry
