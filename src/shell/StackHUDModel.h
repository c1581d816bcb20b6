// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>
#include <qqmlregistration.h>

namespace vellumry {

class PasteStack;

/// A Paste Stack in the words of its bar. Main thread.
class StackHUDModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to the bar's controller")
    Q_PROPERTY(QString sentence READ sentence NOTIFY changed)
    Q_PROPERTY(QString spoken READ spoken NOTIFY changed)
    Q_PROPERTY(QString next READ next NOTIFY changed)
    Q_PROPERTY(QString spokenNext READ spokenNext NOTIFY changed)
    Q_PROPERTY(bool isOver READ isOver NOTIFY changed)
    Q_PROPERTY(bool isReversed READ isReversed NOTIFY changed)
    Q_PROPERTY(QString orderHelp READ orderHelp NOTIFY changed)
    Q_PROPERTY(QString stopHelp READ stopHelp CONSTANT)

public:
    /// `stack` must outlive this.
    explicit StackHUDModel(PasteStack& stack);

    /// What the bar says, as styled text: the number of items that wait in bold.
    [[nodiscard]] QString sentence() const;
    /// The same without a style.
    [[nodiscard]] QString spoken() const;
    /// What the next paste key pastes, in a few words; empty when nothing waits. A secret is not shown.
    [[nodiscard]] QString next() const;
    /// The same as a sentence.
    [[nodiscard]] QString spokenNext() const;
    /// All was pasted.
    [[nodiscard]] bool isOver() const;
    [[nodiscard]] bool isReversed() const;
    /// What the two buttons do.
    [[nodiscard]] QString orderHelp() const;
    [[nodiscard]] QString stopHelp() const;

    Q_INVOKABLE void turnAround();
    /// The user pressed the stop button.
    Q_INVOKABLE void stop() { Q_EMIT stopped(); }

Q_SIGNALS:
    void changed();
    void stopped();

private:
    [[nodiscard]] QString said(const QString& number) const;

    PasteStack* m_stack;
};

} // namespace vellumry
