// SPDX-License-Identifier: GPL-3.0-or-later
#include "torture/TortureWork.h"

#include "foundation/UniformType.h"
#include "support/Awaited.h"
#include "support/Drafts.h"

#include <algorithm>
#include <unistd.h>

namespace vellumry {

using namespace Qt::StringLiterals;

namespace tortureclips {

namespace {

const QString versionType = u"com.example.version"_s;

QByteArray versionBytes(int version, qsizetype padding) {
    return QByteArray::number(version) + ' ' + QByteArray(padding, static_cast<char>('a' + version % 26));
}

} // namespace

ClipDraft draft(int clip, int version, bool isSensitive, qsizetype padding) {
    ClipDraft draft = drafts::text(u"clip %1"_s.arg(clip));
    draft.isSensitive = isSensitive;
    draft.payload.items[0].representations[versionType] = versionBytes(version, padding);
    return draft;
}

int numberOf(const Clip& clip) {
    return clip.title.toString().section(u' ', 1).toInt();
}

std::optional<int> versionOf(int clip, const ClipPayload& payload) {
    if (payload.items.size() != 1)
        return std::nullopt;
    const auto& representations = payload.items[0].representations;
    const auto found = representations.find(versionType);
    const auto text = representations.find(uniformtype::utf8PlainText);
    if (found == representations.end() || text == representations.end() ||
        text->second != "clip " + QByteArray::number(clip))
        return std::nullopt;
    const QByteArray bytes = found->second;
    const int version = bytes.left(bytes.indexOf(' ')).toInt();
    return bytes == versionBytes(version, bytes.size() - bytes.indexOf(' ') - 1) ? std::optional(version)
                                                                                 : std::nullopt;
}

} // namespace tortureclips

TortureWork::TortureWork(ClipStore& store, const FailingDisk* disk, Start start)
    : m_store(&store)
    , m_disk(disk)
    , m_start(start)
    , m_random(start.seed)
    , m_now(start.now)
    , m_nextClip(start.nextClip) {
    m_store->setSensitiveLifetime(lifetime);
}

void TortureWork::run(int steps) {
    for (int step = 0; step < steps; ++step) {
        m_now += 1;
        const ClipRef clip = anyClip();
        switch (clip ? m_random() % 12 : 0) {
        case 0:
        case 1:
        case 2:
        case 3:
            write(m_nextClip++, false);
            break;
        case 4:
        case 5:
            write(tortureclips::numberOf(*clip), clip->isPinned);
            break;
        case 6:
        case 7:
        case 8:
            useOrPin(clip);
            break;
        case 9:
        case 10:
            removeSome();
            break;
        default:
            expire();
        }
    }
}

ClipRef TortureWork::anyClip() {
    const auto& clips = m_store->clips();
    return clips.empty() ? nullptr : clips[m_random() % clips.size()];
}

std::vector<int> TortureWork::dueClips() const {
    std::vector<int> due;
    for (const ClipRef& clip : m_store->clips()) {
        if (clip->expiresAt && *clip->expiresAt <= m_now)
            due.push_back(tortureclips::numberOf(*clip));
    }
    return due;
}

void TortureWork::write(int clip, bool isPinned) {
    const bool isSensitive = isLucky(4);
    const qsizetype padding = isLucky(30) ? 300'000 : isLucky(5) ? 9'000 : static_cast<qsizetype>(m_random() % 300);
    TortureStep step;
    step.clip = clip;
    step.written = {true, static_cast<int>(m_now) * 1000 + ++m_version % 1000, isPinned, std::nullopt, m_now};
    if (isSensitive)
        step.written.expires = m_now + lifetime;
    step.others = dueClips();
    std::erase(step.others, clip);
    begin(step);
    auto adding = m_store->add(tortureclips::draft(clip, step.written.version, isSensitive, padding), m_now);
    end(awaited(std::move(adding)) != nullptr);
}

void TortureWork::useOrPin(const ClipRef& clip) {
    TortureStep step;
    step.clip = tortureclips::numberOf(*clip);
    step.written.used = m_now;
    step.written.expires = clip->expiresAt;
    if (!isLucky(3)) {
        step.kind = TortureStep::Kind::use;
        begin(step);
        awaited(m_store->markUsed(clip->id, m_now));
    } else {
        step.kind = clip->isPinned ? TortureStep::Kind::unpin : TortureStep::Kind::pin;
        begin(step);
        awaited(m_store->setPinned(clip->id, !clip->isPinned, m_now));
    }
    // What joins a row that still waits to be written is not in the file yet.
    end(!m_store->isBehind());
}

void TortureWork::removeSome() {
    QSet<QUuid> ids;
    TortureStep step;
    step.kind = TortureStep::Kind::remove;
    const unsigned count = isLucky(20) ? 60 : isLucky(3) ? 4 : 1;
    for (unsigned i = 0; i < count; ++i) {
        const ClipRef clip = anyClip();
        ids.insert(clip->id);
        step.clip = tortureclips::numberOf(*clip);
        step.others.push_back(step.clip);
    }
    begin(step);
    awaited(m_store->remove(ids, isLucky(5)));
    end();
}

void TortureWork::expire() {
    TortureStep step;
    step.kind = TortureStep::Kind::remove;
    step.others = dueClips();
    if (step.others.empty())
        return;
    step.clip = step.others.front();
    begin(step);
    awaited(m_store->enforceRetention(m_now));
    end();
}

void TortureWork::begin(const TortureStep& step) {
    m_failuresBefore = m_disk ? m_disk->failures() : 0;
    say("b " + step.line() + '\n');
}

void TortureWork::end(bool isReported) {
    const bool hasFailed = m_disk && m_disk->failures() != m_failuresBefore;
    // Without a reason a copy may not be refused: that is an acknowledgement all the same, which the file will belie.
    say(hasFailed || (m_disk && !isReported) ? "e 0\n" : "e 1\n");
}

void TortureWork::say(const QByteArray& line) const {
    if (::write(m_start.output, line.constData(), static_cast<std::size_t>(line.size())) != line.size())
        _exit(1);
}

} // namespace vellumry
