// SPDX-License-Identifier: GPL-3.0-or-later
// Reads lines of JSON, each with the text of a picture and words, and writes for each line how many of the words the
// history's search finds that picture by.
#include "history/clips/ClipStore.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <iostream>
#include <string>

using namespace vellumry;

namespace {

int foundWords(const QJsonObject& line) {
    ClipStore store{RetentionPolicy{}};
    ClipDraft draft;
    draft.kind = ClipKind::image;
    draft.payload.items = {{{{QStringLiteral("public.png"), "png"}}, std::nullopt}};
    // Nothing suspends in a store that keeps everything in memory.
    store.add(draft, 1);
    store.setImageText(store.clips().front()->id, line[QStringLiteral("text")].toString(), true);
    int count = 0;
    for (const QJsonValue& word : line[QStringLiteral("words")].toArray())
        count += store.search(word.toString(), ClipFilter::all).empty() ? 0 : 1;
    return count;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    for (std::string line; std::getline(std::cin, line);)
        std::cout << foundWords(QJsonDocument::fromJson(QByteArray::fromStdString(line)).object()) << std::endl;
    return 0;
}
