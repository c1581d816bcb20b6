// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/files/PeerHistories.h"

#include <QHash>
#include <functional>
#include <memory>
#include <vector>

namespace vellumry {

/// Histories of other programs without a disk. Changed only between readings and from `onFound`.
class FakePeerHistories : public PeerHistories {
public:
    struct Contents {
        std::vector<PeerClip> clips{};
        Date newest = 0;
        bool isDamaged = false;
    };
    std::vector<PeerHistory> found;
    QHash<QString, std::shared_ptr<Contents>> contents;
    /// Called on the reading thread when what is there has been read, before that is delivered.
    std::function<void()> onFound = [] {};

    /// A history that is whole.
    Contents& add(const QString& identifier, std::vector<PeerClip> clips, Date newest) {
        found.push_back(
            {identifier, identifier.toUpper(), PeerHistory::State::whole, static_cast<int>(clips.size()), 0});
        const auto added = std::make_shared<Contents>(Contents{std::move(clips), newest, false});
        contents.insert(identifier, added);
        return *added;
    }
    [[nodiscard]] std::vector<PeerHistory> find() override {
        std::vector<PeerHistory> read = found;
        onFound();
        return read;
    }
    [[nodiscard]] std::unique_ptr<PeerReading> open(const QString& identifier) override {
        const auto of = contents.value(identifier);
        return of ? std::make_unique<Reading>(of) : nullptr;
    }

private:
    class Reading : public PeerReading {
    public:
        explicit Reading(std::shared_ptr<Contents> contents)
            : m_contents(std::move(contents)) {}
        [[nodiscard]] std::optional<PeerClip> next() override {
            return m_position < m_contents->clips.size() ? std::optional(m_contents->clips[m_position++])
                                                         : std::nullopt;
        }
        [[nodiscard]] bool isDamaged() const override { return m_contents->isDamaged; }
        [[nodiscard]] Date newest() const override { return m_contents->newest; }

    private:
        std::shared_ptr<Contents> m_contents;
        std::size_t m_position = 0;
    };
};

} // namespace vellumry
