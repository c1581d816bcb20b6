// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/text/TextReadingQueue.h"

#include "capture/PasteboardTypes.h"
#include "foundation/RunDetached.h"

#include <QPointer>
#include <algorithm>

namespace vellumry {

namespace {

/// A disk that says nothing for so long has gone away.
constexpr std::chrono::seconds longestFileRead{30};

bool contains(const std::vector<QUuid>& ids, const QUuid& id) {
    return std::ranges::find(ids, id) != ids.end();
}

/// The picture that the pasteboard held, in the preferred type.
std::vector<QByteArray> picturesIn(const std::optional<ClipPayload>& payload) {
    if (!payload)
        return {};
    for (const ClipPayload::Item& item : payload->items) {
        for (const QString& type : pasteboardtype::imageTypes()) {
            const auto found = item.representations.find(type);
            if (found != item.representations.end())
                return {found->second};
        }
    }
    return {};
}

} // namespace

TextReadingQueue::TextReadingQueue(ClipStore& store, Seams seams, QObject* parent)
    : QObject(parent)
    , m_store(&store)
    , m_seams(std::move(seams)) {}

// What nothing here can read does not wait: it is found again at the next launch.
void TextReadingQueue::enqueue(const std::vector<QUuid>& ids) {
    if (!m_seams.isAvailable())
        return;
    for (const QUuid& id : ids) {
        if (m_current != id && !contains(m_waitingFast, id))
            m_waitingFast.push_back(id);
    }
    Q_EMIT changed();
    wake();
}

void TextReadingQueue::enqueueBacklog() {
    if (!m_seams.isAvailable())
        return;
    const std::vector<QUuid> rough = m_store->clipsWithRoughText();
    for (const QUuid& id : rough) {
        if (m_current != id)
            addAccurate(id);
    }
    enqueue(m_store->clipsWithoutText());
}

void TextReadingQueue::readFile(const QUuid& id) {
    if (!m_seams.isAvailable()) {
        onReaderMissing();
        return;
    }
    m_askedFiles.insert(id);
    enqueue({id});
}

bool TextReadingQueue::isReading(const QUuid& id) const {
    return m_current == id || contains(m_waitingFast, id) ||
           (m_seams.isAccurateUsable() && contains(m_waitingAccurate, id));
}

void TextReadingQueue::wake() {
    if (m_isWorking || (m_waitingFast.empty() && (m_waitingAccurate.empty() || !m_seams.isAccurateUsable())))
        return;
    m_isWorking = true;
    work();
}

void TextReadingQueue::addAccurate(const QUuid& id) {
    if (!contains(m_waitingAccurate, id))
        m_waitingAccurate.push_back(id);
}

/// A quick reading goes first, so that a new copy overtakes a backlog.
std::optional<TextReadingQueue::Job> TextReadingQueue::takeJob() {
    std::optional<Job> job;
    if (!m_seams.isAvailable()) {
        // Those that wait are found again at the next launch.
        m_waitingFast.clear();
        m_waitingAccurate.clear();
    }
    if (!m_waitingFast.empty()) {
        job = Job{m_waitingFast.front(), Reader::fast};
        m_waitingFast.erase(m_waitingFast.begin());
    } else if (!m_waitingAccurate.empty() && m_seams.isAccurateUsable()) {
        job = Job{m_waitingAccurate.front(), Reader::accurate};
        m_waitingAccurate.erase(m_waitingAccurate.begin());
    }
    m_current = job ? std::optional(job->id) : std::nullopt;
    return job;
}

QCoro::Task<void> TextReadingQueue::work() {
    const QPointer<TextReadingQueue> self(this);
    while (const std::optional<Job> job = takeJob()) {
        Q_EMIT changed();
        auto reading = readClip(*job);
        co_await reading;
        if (!self)
            co_return;
    }
    m_isWorking = false;
    Q_EMIT changed();
}

bool TextReadingQueue::isWorthReading(const Clip& clip, Reader reader) {
    if (clip.kind != ClipKind::image && !clip.isImageFile())
        return false;
    if (reader == Reader::accurate)
        return !clip.imageTextIsAccurate;
    if (!clip.imageText || m_askedFiles.contains(clip.id))
        return true;
    if (!clip.imageTextIsAccurate)
        addAccurate(clip.id);
    return false;
}

QCoro::Task<void> TextReadingQueue::readClip(Job job) {
    const QPointer<TextReadingQueue> self(this);
    const ClipRef clip = m_store->find(job.id);
    if (!clip || !isWorthReading(*clip, job.reader))
        co_return;
    auto collecting = pictures(clip, m_askedFiles.contains(job.id));
    PictureFiles found = co_await collecting;
    // A clip in a folder of the user's own is left to the user, without any mark.
    if (!self || found.isLeftForUser)
        co_return;
    const bool isAsked = m_askedFiles.remove(job.id);
    if (found.pictures.empty()) {
        auto givingUp = giveUp(clip, isAsked);
        co_await givingUp;
        co_return;
    }
    auto reading = readPictures(job, std::move(found.pictures));
    co_await reading;
    if (self && isAsked && !m_seams.isAvailable())
        onReaderMissing();
}

QCoro::Task<PictureFiles> TextReadingQueue::pictures(ClipRef clip, bool isAsked) {
    PictureFiles found;
    if (clip->kind == ClipKind::image) {
        auto loading = m_store->payload(clip->id);
        found.pictures = picturesIn(co_await loading);
        co_return found;
    }
    std::function<PictureFiles()> job = [clip, isAsked, status = m_seams.fileStatus,
                                         canReadQuietly = m_seams.canReadQuietly] {
        return PictureFiles::collect(clip->files, isAsked, status, canReadQuietly);
    };
    auto collecting = runDetached(std::move(job), longestFileRead);
    std::optional<PictureFiles> collected = co_await collecting;
    if (collected)
        found = std::move(*collected);
    co_return found;
}

QCoro::Task<void> TextReadingQueue::giveUp(ClipRef clip, bool isAsked) {
    if (isAsked)
        onFileUnreadable(clip->id);
    // A picture that is not there any more will not come back.
    if (!clip->imageText && clip->kind == ClipKind::image) {
        auto storing = m_store->setImageText(clip->id, QStringLiteral(""), false);
        co_await storing;
    }
}

QCoro::Task<void> TextReadingQueue::readPictures(Job job, std::vector<QByteArray> pictures) {
    const QPointer<TextReadingQueue> self(this);
    QStringList texts;
    bool hasFailed = false;
    for (QByteArray& picture : pictures) {
        auto reading = m_seams.read(std::move(picture), job.reader);
        const std::optional<QString> text = co_await reading;
        if (!self)
            co_return;
        hasFailed = hasFailed || !text;
        if (text && !text->isEmpty())
            texts.append(*text);
    }
    if (!m_store->find(job.id))
        co_return;
    if (!hasFailed || !texts.isEmpty()) {
        const QString joined = texts.join(QStringLiteral("\n\n"));
        auto storing = m_store->setImageText(job.id, joined.isNull() ? QStringLiteral("") : joined,
                                             job.reader == Reader::accurate);
        co_await storing;
        if (!self)
            co_return;
    }
    if (job.reader == Reader::fast)
        addAccurate(job.id);
}

} // namespace vellumry
