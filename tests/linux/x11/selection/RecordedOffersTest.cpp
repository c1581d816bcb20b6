// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/PasteboardSnapshot.h"
#include "foundation/UniformType.h"
#include "linux/x11/selection/X11PasteboardWorld.h"
#include "support/FakeFileBookmarks.h"
#include "support/FakeImageCodec.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtEndian>
#include <algorithm>

namespace vellumry {

namespace {

/// What a real program once offered (tests/e2e/record_offer.py), what its copy is to become, and which targets come
/// back otherwise than they were given.
struct Recording {
    std::string name;
    QJsonObject json;

    [[nodiscard]] std::vector<HostileOwner::Offer> offers() const {
        std::vector<HostileOwner::Offer> result;
        const QJsonObject given = json[u"given"].toObject();
        for (const QJsonValue& target : json[u"targets"].toArray()) {
            if (!given.contains(target.toString()))
                continue;
            const QJsonObject answer = given[target.toString()].toObject();
            HostileOwner::Offer offer;
            offer.target = target.toString().toUtf8();
            offer.bytes = QByteArray::fromBase64(answer[u"bytes"].toString().toLatin1());
            offer.type = answer[u"type"].toString().toUtf8();
            offer.format = answer[u"format"].toInt();
            result.push_back(std::move(offer));
        }
        return result;
    }
    [[nodiscard]] bool comesBackOtherwise(const QByteArray& target) const {
        return json[u"differs"].toObject().contains(QString::fromUtf8(target));
    }
};

std::vector<Recording> recordings() {
    std::vector<Recording> result;
    const QDir folder(QStringLiteral(VELLUMRY_RECORDED_OFFERS));
    for (const QString& name : folder.entryList({QStringLiteral("*.json")}, QDir::Files)) {
        QFile file(folder.filePath(name));
        if (file.open(QIODevice::ReadOnly))
            result.push_back({QString(name).remove(QStringLiteral(".json")).toStdString(),
                              QJsonDocument::fromJson(file.readAll()).object()});
    }
    return result;
}

class RecordedOffers : public X11PasteboardWorld, public ::testing::WithParamInterface<Recording> {
protected:
    /// The size that the header of the recorded PNG tells.
    void knowPicture(const std::vector<HostileOwner::Offer>& offers) {
        constexpr int widthAt = 16;
        constexpr int heightAt = 20;
        for (const HostileOwner::Offer& offer : offers) {
            if (offer.target == "image/png")
                images.summary.pixelSize = QSize(qFromBigEndian<qint32>(offer.bytes.constData() + widthAt),
                                                 qFromBigEndian<qint32>(offer.bytes.constData() + heightAt));
        }
    }

    std::optional<ClipDraft> draft() {
        SnapshotRequest request;
        request.changeCount = pasteboard->changeCount();
        return resultOf(readDraft(pasteboard.get(), DraftBuilder(bookmarks, images), request), 20'000);
    }
    /// What another program gets for `target`, once the clip has been put back.
    QByteArray givenBack(HostileOwner& reader, const QByteArray& target) {
        reader.answers.erase(target);
        reader.ask("CLIPBOARD", target);
        EXPECT_TRUE(eventually([&] { return reader.answers.contains(target); }));
        return reader.answers[target].bytes;
    }

    FakeFileBookmarks bookmarks;
    FakeImageCodec images;
};

TEST_P(RecordedOffers, BecomeWhatTheyAreAndComeBackAsTheyWere) {
    const Recording& recording = GetParam();
    const std::vector<HostileOwner::Offer> offers = recording.offers();
    ASSERT_FALSE(offers.empty());
    knowPicture(offers);
    HostileOwner& owner = copied(offers);
    const std::optional<ClipDraft> clip = draft();
    const QJsonValue becomes = recording.json[u"becomes"];
    if (becomes.isNull()) {
        EXPECT_EQ(clip, std::nullopt);
        EXPECT_EQ(owner.requests, QByteArrayList{"TARGETS"});
        return;
    }
    ASSERT_TRUE(clip);
    EXPECT_EQ(static_cast<int>(clip->kind), becomes[u"kind"].toInt());
    EXPECT_EQ(clip->title, becomes[u"title"].toString());

    ASSERT_TRUE(pasteboard->write(clip->payload.items));
    HostileOwner& reader = peer();
    for (const HostileOwner::Offer& offer : offers) {
        // Names that mean something to their program or their machine alone are neither kept nor offered.
        const bool isContent = uniformtype::fromTarget(QString::fromUtf8(offer.target)).has_value();
        const QByteArray back = givenBack(reader, offer.target);
        if (!isContent)
            EXPECT_EQ(back, QByteArray()) << offer.target.constData();
        else if (recording.comesBackOtherwise(offer.target))
            EXPECT_NE(back, offer.bytes) << offer.target.constData() << " comes back as it was: say so";
        else
            EXPECT_EQ(back, offer.bytes) << offer.target.constData();
    }
}

INSTANTIATE_TEST_SUITE_P(Clients, RecordedOffers, ::testing::ValuesIn(recordings()), [](const auto& row) {
    std::string name = row.param.name;
    std::ranges::replace(name, '-', '_');
    return name;
});

} // namespace

} // namespace vellumry
