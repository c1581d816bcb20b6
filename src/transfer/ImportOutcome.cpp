// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/ImportOutcome.h"

#include "foundation/Localisation.h"

#include <QStringList>

namespace vellumry {

QString ImportOutcome::text() const {
    if (isMissing)
        return localised("There is nothing to import here any more.");
    QStringList sentences{localised("%n clips were imported.", added)};
    if (isStopped)
        sentences.append(localised("The rest was not looked at, as you stopped it."));
    if (alreadyThere > 0)
        sentences.append(localised("%n clips were in your history already.", alreadyThere));
    if (secrets > 0)
        sentences.append(localised("%n passwords, codes or keys were left out.", secrets));
    if (excluded > 0)
        sentences.append(localised("%n clips were left out, as nothing is saved from their apps.", excluded));
    if (beyondLimits > 0)
        sentences.append(localised("%n clips are beyond the limits of your history.", beyondLimits));
    if (withoutRoom > 0)
        sentences.append(localised("%n pictures were left out, as your disk is almost full.", withoutRoom));
    if (unusable > 0)
        sentences.append(localised("%n entries had nothing in them that can be kept.", unusable));
    if (isDamaged)
        sentences.append(localised("It is damaged: what could be read was looked at."));
    return sentences.join(u' ');
}

} // namespace vellumry
