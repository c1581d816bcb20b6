// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/Drafts.h"
#include "support/TemporaryHistory.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;

/// The file as a program sees it that shares no line with ours.
QJsonArray unsealed(const TemporaryHistory& history, const SymmetricKey& key) {
    const auto bytes = key.bytes();
    const QByteArray digits =
        QByteArray(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())).toHex();
    QProcess reader;
    reader.start(u"/usr/bin/python3"_s, {QStringLiteral(VELLUMRY_UNSEAL), history.path()});
    reader.write(digits);
    reader.closeWriteChannel();
    EXPECT_TRUE(reader.waitForFinished());
    EXPECT_EQ(reader.exitCode(), 0) << reader.readAllStandardError().toStdString();
    return QJsonDocument::fromJson(reader.readAllStandardOutput()).array();
}

TEST(ForeignReader, ReadsWhatWeWriteWhileTheHistoryIsOpen) {
    TemporaryHistory history;
    const auto store = history.openStore();
    ClipDraft draft = drafts::text(u"grün \U0001F600"_s);
    draft.sourceBundleID = u"org.example.Editor"_s;
    draft.sourceAppName = u"Éditeur"_s;
    const ClipRef text = awaited(store->add(draft, 1000.125));
    const ClipRef files = awaited(store->add(drafts::files({u"/a/b c"_s, u"/d"_s}), 2000));
    const ClipRef image = awaited(store->add(drafts::image(QByteArray("\x89PNG\0\1", 6)), 3000));
    awaited(store->setPinned(image->id, true, 4));
    awaited(store->setImageText(image->id, u"read"_s, true));
    const ClipRef secret = awaited(store->add(drafts::secret(u"secret"_s), 500));

    const QJsonArray rows = unsealed(history, history.key());
    ASSERT_EQ(rows.size(), 4);
    EXPECT_EQ(rows[0]["id"].toString(), image->id.toString(QUuid::WithoutBraces).toUpper());
    EXPECT_EQ(rows[0]["kind"].toInt(), 3);
    EXPECT_EQ(rows[0]["pinned"].toInt(), 4000);
    EXPECT_EQ(rows[0]["imageText"].toString(), u"read"_s);
    EXPECT_TRUE(rows[0]["imageTextIsAccurate"].toBool());
    EXPECT_EQ(QByteArray::fromBase64(rows[0]["thumbnail"].toString().toLatin1()), "thumbnail");
    EXPECT_EQ(QByteArray::fromBase64(rows[0]["payload"][0]["representations"]["public.png"].toString().toLatin1()),
              QByteArray("\x89PNG\0\1", 6));
    EXPECT_EQ(rows[1]["files"][0]["path"].toString(), u"/a/b c"_s);
    EXPECT_EQ(rows[1]["fingerprint"].toString(), files->fingerprint.toString());
    EXPECT_EQ(rows[1]["payload"].toArray().size(), 2);
    EXPECT_EQ(rows[2]["title"].toString(), u"grün \U0001F600"_s);
    EXPECT_EQ(rows[2]["searchText"].toString(), u"grün \U0001F600"_s);
    EXPECT_EQ(rows[2]["sourceBundleID"].toString(), u"org.example.Editor"_s);
    EXPECT_EQ(rows[2]["sourceAppName"].toString(), u"Éditeur"_s);
    EXPECT_EQ(rows[2]["created"].toDouble(), 1000.125);
    EXPECT_TRUE(rows[2]["expires"].isNull());
    EXPECT_EQ(rows[2]["payload"][0]["order"][0].toString(), uniformtype::utf8PlainText);
    EXPECT_EQ(rows[2]["size"].toInteger(), text->byteSize);
    EXPECT_EQ(rows[3]["expires"].toDouble(), 560);
}

TEST(ForeignReader, OpensNothingWithAnotherKey) {
    TemporaryHistory history;
    const auto store = history.openStore();
    awaited(store->add(drafts::text(u"one"_s), 1));
    const QJsonArray rows = unsealed(history, SymmetricKey::random());
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows[0]["error"].toString(), u"InvalidTag"_s);
    EXPECT_TRUE(rows[0]["title"].isUndefined());
}

} // namespace
} // namespace vellumry
