// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QCoroTask>
#include <QString>
#include <QStringList>
#include <memory>

namespace vellumry {

/// What an owner gave for a target. Immutable once made; shared between the threads.
struct GivenBytes {
    QByteArray bytes;
    bool wasLarger = false; ///< there was more than was asked for, and nothing is here
};

/// What another program offered at one change count. Main thread.
class ForeignOffer {
public:
    virtual ~ForeignOffer() = default;

    /// The names of the offered forms, in the owner's order, each once.
    [[nodiscard]] virtual const QStringList& targets() const = 0;
    /// False once the pasteboard has another owner or the deadline for the whole copy has passed.
    [[nodiscard]] virtual bool isCurrent() const = 0;
    /// Asks the owner for one of `targets`. With a `uniformType` the bytes are what that has for the target's, else as
    /// they came. Null when the offer is of the past, and when the owner does not give it or hangs. The offer may go
    /// while the answer is awaited.
    [[nodiscard]] virtual QCoro::Task<std::shared_ptr<const GivenBytes>> read(QString target, QString uniformType,
                                                                              qint64 maxBytes) const = 0;
};

} // namespace vellumry
