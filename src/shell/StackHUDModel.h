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
    Q_PROPERTY(QString number READ number NOTIFY changed)
    Q_PROPERTY(QString sentence READ sentence NOTIFY changed)
    Q_PROPERTY(bool isOver READ isOver NOTIFY changed)
    Q_PROPERTY(bool isReversed READ isReversed NOTIFY changed)
    Q_PROPERTY(QString orderHelp READ orderHelp NOTIFY changed)
    Q_PROPERTY(QString stopHelp READ stopHelp CONSTANT)

public:
    /// `stack` must outlive this.
    explicit StackHUDModel(PasteStack& stack);

    /// How many items wait; empty where the sentence is not about them.
    [[nodiscard]] QString number() const;
    /// What is said behind the number, or instead of it.
    [[nodiscard]] QString sentence() const;
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
    [[nodiscard]] bool countsDown() const;

    PasteStack* m_stack;
};

} // namespace vellumry
