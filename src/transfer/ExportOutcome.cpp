// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/ExportOutcome.h"

#include "foundation/Localisation.h"

#include <QStringList>

namespace vellumry {

QString ExportOutcome::text(const QString& folder) const {
    switch (result) {
    case Result::notEmpty:
        return localised("%1 is not empty. Choose a new folder.").arg(folder);
    case Result::refused:
        return localised("%1 can't be written to. Choose another folder.").arg(folder);
    case Result::noRoom:
        return localised("The disk is full. Nothing was left in %1.").arg(folder);
    case Result::stopped:
        return localised("Stopped. Nothing was left in %1.").arg(folder);
    case Result::done:
        break;
    }
    QStringList sentences{localised("%n clips are in %1 now, and not encrypted there.", clips).arg(folder)};
    if (secrets > 0)
        sentences.append(localised("%n clips that delete themselves were left out.", secrets));
    if (unreadable > 0)
        sentences.append(localised("%n clips could not be read.", unreadable));
    return sentences.join(u' ');
}

} // namespace vellumry
