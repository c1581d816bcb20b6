// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QQuickPaintedItem>
#include <qqmlregistration.h>

namespace vellumry {

/// The program's sign, still or at one moment of its motion.
class Logo : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    /// Seconds since the motion began; a still picture unless it is set.
    Q_PROPERTY(qreal time READ time WRITE setTime NOTIFY timeChanged)
    /// Of the whole motion, in seconds.
    Q_PROPERTY(qreal duration READ duration CONSTANT)

public:
    explicit Logo(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;
    /// The still sign in the sizes that title bars, task bars and task switchers ask for.
    [[nodiscard]] static QIcon windowIcon();
    [[nodiscard]] qreal time() const { return m_time; }
    void setTime(qreal seconds);
    [[nodiscard]] qreal duration() const;

Q_SIGNALS:
    void timeChanged();

private:
    qreal m_time;
};

} // namespace vellumry
