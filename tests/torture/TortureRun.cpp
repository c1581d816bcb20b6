// SPDX-License-Identifier: GPL-3.0-or-later
#include "torture/TortureRun.h"

#include "history/clips/ClipStore.h"
#include "history/file/ClipDatabase.h"
#include "history/file/HistoryFile.h"
#include "support/Awaited.h"
#include "torture/PowerlessDisk.h"
#include "torture/TortureWork.h"

#include <QDir>
#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <limits>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vellumry {

using namespace std::chrono_literals;

namespace {

/// Nothing goes but what is asked to go.
RetentionPolicy unlimited() {
    return {.maxAge = std::nullopt,
            .maxCount = std::numeric_limits<int>::max(),
            .maxMediaBytes = std::numeric_limits<qint64>::max()};
}

/// What the worker writes, by lines; a line that the kill cut short is not one.
class Lines {
public:
    explicit Lines(int input)
        : m_input(input) {}
    /// Nothing at the end, or when the time has passed.
    [[nodiscard]] bool fill(std::chrono::nanoseconds time) {
        pollfd descriptor{m_input, POLLIN, 0};
        const auto seconds = std::chrono::floor<std::chrono::seconds>(time);
        const timespec limit{seconds.count(), (time - seconds).count()};
        if (ppoll(&descriptor, 1, &limit, nullptr) <= 0)
            return false;
        std::array<char, 4096> bytes{};
        const ssize_t got = read(m_input, bytes.data(), bytes.size());
        if (got > 0)
            m_bytes.append(bytes.data(), got);
        return got > 0;
    }
    [[nodiscard]] std::optional<QByteArray> next() {
        const qsizetype end = m_bytes.indexOf('\n');
        if (end < 0)
            return std::nullopt;
        const QByteArray line = m_bytes.left(end);
        m_bytes.remove(0, end + 1);
        return line;
    }

private:
    int m_input;
    QByteArray m_bytes;
};

std::map<int, TortureState> contentOf(ClipStore& store, std::string& wrong) {
    std::map<int, TortureState> found;
    for (const ClipRef& clip : store.clips()) {
        const int number = tortureclips::numberOf(*clip);
        const auto payload = awaited(store.payload(clip->id));
        const auto version = payload ? tortureclips::versionOf(number, *payload) : std::nullopt;
        if (!version)
            wrong += "clip " + std::to_string(number) + " has a damaged payload\n";
        if (found.contains(number))
            wrong += "clip " + std::to_string(number) + " is there twice\n";
        found[number] = {true, version.value_or(-1), clip->isPinned, clip->expiresAt, clip->lastUsedAt};
    }
    return found;
}

/// The status of a worker that opened another history than the one that is there.
constexpr int openedOther = 3;

std::size_t rowsIn(const QString& folder) {
    SQLiteDatabase file(QDir(folder).filePath(historyfile::fileName), SQLiteDatabase::Access::recover);
    auto counting = file.prepare("SELECT count(*) FROM clips;");
    return counting.step() ? static_cast<std::size_t>(counting.integer(0)) : 0;
}

/// Opens the history on a disk that fails meanwhile, again until it opens. A failure may refuse it; never may it pass
/// for damage, or leave clips out. Ends the process when it does.
std::unique_ptr<ClipStore> openOnFailingDisk(const QString& folder, KeyStore& keyStore, FailingDisk& disk) {
    const std::size_t rows = rowsIn(folder);
    disk.setFailing(true);
    for (int attempt = 0; attempt < 1000; ++attempt) {
        try {
            const auto history = ClipDatabase::openHistory(folder, keyStore);
            if (!history)
                continue;
            auto store = awaited(ClipStore::open(history->database, unlimited(), false));
            if (history->recoveredFromDamage || store->clips().size() != rows)
                _exit(openedOther);
            return store;
        } catch (const SQLiteError&) {
            continue;
        }
    }
    _exit(1);
}

} // namespace

TortureRun::TortureRun(std::string program, Torture torture, unsigned seed)
    : m_program(std::move(program))
    , m_torture(torture)
    , m_random(seed) {
    (void)ClipDatabase::openHistory(m_folder.path(), m_keyStore).value();
}

std::string TortureRun::round() {
    runWorker();
    return examine();
}

void TortureRun::runWorker() {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);

    const SymmetricKey key = *m_keyStore.key();
    const QByteArray keyBytes(reinterpret_cast<const char*>(key.bytes().data()), SymmetricKey::byteCount);
    std::vector<std::string> words{m_program,
                                   "--work",
                                   m_folder.path().toStdString(),
                                   keyBytes.toHex().toStdString(),
                                   std::to_string(static_cast<int>(m_torture)),
                                   std::to_string(m_random()),
                                   std::to_string(static_cast<qint64>(m_now)),
                                   std::to_string(m_nextClip)};
    std::vector<char*> arguments;
    for (std::string& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    pid_t worker = 0;
    if (posix_spawn(&worker, m_program.c_str(), &actions, nullptr, arguments.data(), environ) != 0)
        throw std::runtime_error("the worker could not be started");
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);

    // Up to so many lines and then so many microseconds, so that the end falls anywhere in a step.
    const int most = m_torture == Torture::power ? std::numeric_limits<int>::max() : static_cast<int>(m_random() % 160);
    std::optional<TortureStep> open;
    Lines lines(ends[0]);
    int count = 0;
    const auto takeAll = [&] {
        while (const auto line = lines.next()) {
            take(*line, open);
            ++count;
        }
    };
    while (count < most && lines.fill(60s))
        takeAll();
    const auto end = std::chrono::steady_clock::now() + std::chrono::microseconds(m_random() % 4000);
    const auto left = [end] { return end - std::chrono::steady_clock::now(); };
    while (left() > 0s && lines.fill(left()))
        takeAll();
    ::kill(worker, SIGKILL);
    int status = 0;
    waitpid(worker, &status, 0);
    m_hasOpenedOther = WIFEXITED(status) && WEXITSTATUS(status) == openedOther;
    while (lines.fill(0s)) {
    }
    takeAll();
    close(ends[0]);
    if (open)
        m_model.maybeDone(*open);
}

void TortureRun::take(const QByteArray& line, std::optional<TortureStep>& open) {
    if (line.startsWith("b ")) {
        open = TortureStep::of(line.mid(2));
        m_now = std::max(m_now, open->written.used) + 1;
        m_nextClip = std::max(m_nextClip, open->clip + 1);
    } else if (open) {
        line == "e 1" ? m_model.done(*open) : m_model.maybeDone(*open);
        open.reset();
    }
}

std::string TortureRun::examine() {
    std::string wrong = m_hasOpenedOther ? "a failing disk passed for damage, or hid clips\n" : "";
    const QString path = QDir(m_folder.path()).filePath(historyfile::fileName);
    {
        SQLiteDatabase file(path, SQLiteDatabase::Access::readWrite);
        auto check = file.prepare("PRAGMA integrity_check;");
        if (!check.step() || check.text(0) != "ok")
            wrong += "integrity check: " + check.text(0).toByteArray().toStdString() + "\n";
    }
    const OpenedHistory history = ClipDatabase::openHistory(m_folder.path(), m_keyStore).value();
    if (history.recoveredFromDamage)
        wrong += "the file was put aside\n";
    const auto store = awaited(ClipStore::open(history.database, unlimited(), false));
    const auto found = contentOf(*store, wrong);
    m_clips = found.size();
    return wrong + m_model.settle(found);
}

int TortureRun::work(int count, char** arguments) {
    if (count != 8)
        return 2;
    const auto torture = static_cast<Torture>(std::stoi(arguments[4]));
    const auto seed = static_cast<unsigned>(std::stoul(arguments[5]));
    std::mt19937 random(seed);
    FailingDisk failing(seed);
    PowerlessDisk powerless(seed, random() % 500);
    if (torture == Torture::disk)
        installTestVfs([&](sqlite3_file* real) { return failing.open(real); });
    if (torture == Torture::power)
        installTestVfs([&](sqlite3_file* real) { return powerless.open(real); });

    MemoryKeyStore keyStore(SymmetricKey(QByteArray::fromHex(arguments[3])));
    const QString folder = QString::fromUtf8(arguments[2]);
    const auto store = torture == Torture::disk
                           ? openOnFailingDisk(folder, keyStore, failing)
                           : awaited(ClipStore::open(ClipDatabase::openHistory(folder, keyStore).value().database,
                                                     unlimited(), false));
    TortureWork work(*store, torture == Torture::disk ? &failing : nullptr,
                     {seed, std::stod(arguments[6]), std::stoi(arguments[7]), STDOUT_FILENO});
    work.run(100'000);
    return 1;
}

} // namespace vellumry
