#include "tools/CatalogueWorkers.h"

#include "tools/Isd.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <deque>
#include <iostream>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace OrmoNitf::Catalogue {

namespace {

using Clock = std::chrono::steady_clock;

constexpr const char* GREETING = "ready";

/// A process that reads files, and what it was given and has not answered yet.
class Worker
{
public:
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;
    /// One that has nothing to do ends by itself, any other one is ended.
    ~Worker()
    {
        ::close(m_in);
        ::close(m_out);
        if (m_process > 0) {
            if (!m_given.empty() || !m_hasGreeted) {
                ::kill(m_process, SIGKILL);
            }
            Bury();
        }
    }

    static std::unique_ptr<Worker> Start(const WorkerOptions& aOptions, std::string& aReason)
    {
        std::array<int, 2> in{-1, -1};
        std::array<int, 2> out{-1, -1};
        std::unique_ptr<Worker> worker(new Worker);
        if (::pipe2(in.data(), O_CLOEXEC) != 0 || ::pipe2(out.data(), O_CLOEXEC) != 0) {
            aReason = std::strerror(errno);
            return nullptr;
        }
        worker->m_in = in[1];
        worker->m_out = out[0];
        ::fcntl(in[1], F_SETFL, O_NONBLOCK);
        posix_spawn_file_actions_t actions;
        ::posix_spawn_file_actions_init(&actions);
        ::posix_spawn_file_actions_adddup2(&actions, in[0], STDIN_FILENO);
        ::posix_spawn_file_actions_adddup2(&actions, out[1], STDOUT_FILENO);
        std::vector<std::string> words{"ormo-nitf", "catalogue", "--worker"};
        if (aOptions.memoryLimit != 0) {
            words.push_back("--memory-limit=" + std::to_string(aOptions.memoryLimit));
        }
        if (aOptions.request.salvage) {
            words.emplace_back("--salvage");
        }
        if (aOptions.request.previews) {
            words.emplace_back("--previews");
        }
        std::vector<char*> arguments;
        std::transform(words.begin(), words.end(), std::back_inserter(arguments),
                       [](std::string& aWord) { return aWord.data(); });
        arguments.push_back(nullptr);
        const int error =
            ::posix_spawn(&worker->m_process, "/proc/self/exe", &actions, nullptr, arguments.data(), environ);
        ::posix_spawn_file_actions_destroy(&actions);
        ::close(in[0]);
        ::close(out[1]);
        if (error != 0) {
            worker->m_process = -1;
            aReason = std::strerror(error);
            return nullptr;
        }
        worker->m_since = Clock::now();
        return worker;
    }

    int In() const noexcept { return m_in; }
    int Out() const noexcept { return m_out; }
    bool WantsToWrite() const noexcept { return !m_unsent.empty(); }
    bool HasGreeted() const noexcept { return m_hasGreeted; }
    const std::deque<std::size_t>& Given() const noexcept { return m_given; }
    Clock::time_point Since() const noexcept { return m_since; }

    void Give(std::size_t aFile, const std::string& aPath)
    {
        if (m_given.empty() && m_hasGreeted) {
            m_since = Clock::now();
        }
        m_given.push_back(aFile);
        m_unsent += aPath;
        m_unsent += '\0';
    }

    void Send()
    {
        const ssize_t count = ::write(m_in, m_unsent.data(), m_unsent.size());
        if (count > 0) {
            m_unsent.erase(0, static_cast<std::size_t>(count));
        } else if (count < 0 && errno != EAGAIN && errno != EINTR) {
            m_unsent.clear();  // it is dead, as reading will tell
        }
    }

    /// Whole lines that have come; false when the worker has ended.
    template<typename Line>
    bool Receive(const Line& aLine)
    {
        std::array<char, 65536> piece{};
        const ssize_t count = ::read(m_out, piece.data(), piece.size());
        if (count <= 0) {
            return count < 0 && (errno == EINTR || errno == EAGAIN);
        }
        m_received.append(piece.data(), static_cast<std::size_t>(count));
        std::size_t from = 0;
        for (std::size_t end = 0; (end = m_received.find('\n', from)) != std::string::npos; from = end + 1) {
            const std::string_view line(m_received.data() + from, end - from);
            m_since = Clock::now();
            if (!m_hasGreeted) {
                m_hasGreeted = line == GREETING;
            } else if (!m_given.empty()) {
                const std::size_t file = m_given.front();
                m_given.pop_front();
                aLine(file, line);
            }
        }
        m_received.erase(0, from);
        return true;
    }

    /// Waits until it has ended and tells how.
    std::string Bury()
    {
        int status = 0;
        while (::waitpid(m_process, &status, 0) < 0 && errno == EINTR) {
        }
        m_process = -1;
        return WIFSIGNALED(status) ? std::string("signal ") + ::strsignal(WTERMSIG(status))
                                   : "exit code " + std::to_string(WEXITSTATUS(status));
    }

private:
    Worker() = default;

    pid_t m_process = -1;
    int m_in = -1;
    int m_out = -1;
    bool m_hasGreeted = false;
    std::string m_unsent;
    std::string m_received;
    std::deque<std::size_t> m_given;
    Clock::time_point m_since;  ///< when it began with what it works on
};

class Crew
{
public:
    Crew(const std::vector<Candidate>& aFiles, const WorkerOptions& aOptions, const TakeRecord& aTake)
        : m_files(aFiles), m_options(aOptions), m_take(aTake)
    {
        m_workers.resize(std::max<std::size_t>(1, std::min<std::size_t>(aOptions.jobs, aFiles.size())));
    }

    bool Work(std::string& aReason)
    {
        while (m_turn != m_files.size() && !m_isEnded) {
            for (std::unique_ptr<Worker>& worker : m_workers) {
                if (worker == nullptr && HasWork()) {
                    worker = Worker::Start(m_options, aReason);
                    if (worker == nullptr) {
                        return false;
                    }
                }
                if (worker != nullptr) {
                    Give(*worker);
                }
            }
            if (!Wait(aReason)) {
                return false;
            }
        }
        return true;
    }

private:
    // Enough for a worker never to wait, few enough not to be read by another one after a death.
    static constexpr std::size_t MOST_GIVEN = 16;
    // A record that comes before its turn is kept.
    static constexpr std::size_t MOST_AHEAD = 2048;

    bool HasWork() const noexcept { return !m_again.empty() || !m_alone.empty() || m_next != m_files.size(); }

    void Give(Worker& aWorker)
    {
        const auto& given = aWorker.Given();
        if (!given.empty() && m_suspects.count(given.front()) != 0) {
            return;
        }
        if (given.empty() && !m_alone.empty()) {
            aWorker.Give(m_alone.front(), m_files[m_alone.front()].path);
            m_alone.pop_front();
            return;
        }
        while (given.size() < MOST_GIVEN && (!m_again.empty() || m_next != m_files.size())) {
            if (!m_again.empty()) {
                aWorker.Give(m_again.front(), m_files[m_again.front()].path);
                m_again.pop_front();
            } else if (m_next < m_turn + MOST_AHEAD) {
                aWorker.Give(m_next, m_files[m_next].path);
                ++m_next;
            } else {
                break;
            }
        }
    }

    /// A machine that is busy may need long to start a process, which is no fault of a file.
    Clock::time_point DeadlineOf(const Worker& aWorker) const
    {
        constexpr std::chrono::seconds TO_BEGIN{120};
        return aWorker.Since() + (aWorker.HasGreeted() ? m_options.timeLimit : TO_BEGIN);
    }

    bool Wait(std::string& aReason)
    {
        std::vector<pollfd> polled;
        const Clock::time_point now = Clock::now();
        auto wait = std::chrono::milliseconds(1000);
        for (const std::unique_ptr<Worker>& worker : m_workers) {
            polled.push_back({worker == nullptr ? -1 : worker->Out(), POLLIN, 0});
            polled.push_back({worker != nullptr && worker->WantsToWrite() ? worker->In() : -1, POLLOUT, 0});
            if (worker != nullptr && !worker->Given().empty()) {
                const auto left = std::chrono::ceil<std::chrono::milliseconds>(DeadlineOf(*worker) - now);
                wait = std::clamp(left, std::chrono::milliseconds(0), wait);
            }
        }
        ::poll(polled.data(), polled.size(), static_cast<int>(wait.count()));
        for (std::size_t i = 0; i != m_workers.size() && !m_isEnded; ++i) {
            std::unique_ptr<Worker>& worker = m_workers[i];
            if (worker == nullptr) {
                continue;
            }
            if (polled[2 * i + 1].revents != 0) {
                worker->Send();
            }
            const auto take = [this](std::size_t aFile, std::string_view aLine) { TakeLine(aFile, aLine); };
            if (polled[2 * i].revents != 0 && !worker->Receive(take)) {
                if (!worker->HasGreeted()) {
                    aReason = "A worker ended before it began: " + worker->Bury();
                    return false;
                }
                TakeDeath(*worker);
                worker.reset();
            } else if (!worker->Given().empty() && Clock::now() >= DeadlineOf(*worker)) {
                if (!worker->HasGreeted()) {
                    aReason = "A worker does not begin";
                    return false;
                }
                TakeTimeOut(*worker);
                worker.reset();
            }
        }
        return true;
    }

    void TakeLine(std::size_t aFile, std::string_view aLine)
    {
        Json record = Json::parse(aLine, nullptr, false);
        Finish(aFile, record.is_discarded()
                          ? RecordOf(m_files[aFile], Status::CRASHED, "The worker's answer is no record")
                          : std::move(record));
    }

    /// What was given behind the one that it worked on is given again.
    std::size_t TakeBack(const Worker& aWorker)
    {
        const std::deque<std::size_t>& given = aWorker.Given();
        m_again.insert(m_again.begin(), given.begin() + 1, given.end());
        return given.front();
    }

    void TakeDeath(Worker& aWorker)
    {
        const std::string end = aWorker.Bury();
        if (aWorker.Given().empty()) {
            return;
        }
        const std::size_t file = TakeBack(aWorker);
        if (m_suspects.insert(file).second) {
            m_alone.push_back(file);
        } else {
            Finish(file, RecordOf(m_files[file], Status::CRASHED, "The program ended over the file twice: " + end));
        }
    }

    void TakeTimeOut(Worker& aWorker)
    {
        const std::size_t file = TakeBack(aWorker);
        Finish(file, RecordOf(m_files[file], Status::TIMED_OUT,
                              "The file was not read within " + std::to_string(m_options.timeLimit.count()) + " s"));
    }

    /// Hands records over in the order of the files.
    void Finish(std::size_t aFile, Json aRecord)
    {
        m_suspects.erase(aFile);
        m_done.emplace(aFile, std::move(aRecord));
        while (!m_isEnded && !m_done.empty() && m_done.begin()->first == m_turn) {
            m_isEnded = !m_take(m_turn, std::move(m_done.begin()->second));
            m_done.erase(m_done.begin());
            ++m_turn;
        }
    }

    const std::vector<Candidate>& m_files;
    const WorkerOptions& m_options;
    const TakeRecord& m_take;
    std::vector<std::unique_ptr<Worker>> m_workers;
    std::size_t m_next = 0;
    std::size_t m_turn = 0;
    bool m_isEnded = false;
    std::deque<std::size_t> m_again;
    std::deque<std::size_t> m_alone;
    std::set<std::size_t> m_suspects;  ///< over which a worker died once
    std::map<std::size_t, Json> m_done;
};

}  // namespace

bool ReadInWorkers(const std::vector<Candidate>& aFiles, const WorkerOptions& aOptions, const TakeRecord& aTake,
                   std::string& aReason)
{
    ::signal(SIGPIPE, SIG_IGN);
    return Crew(aFiles, aOptions, aTake).Work(aReason);
}

int Work(const WorkerOptions& aOptions)
{
    // Nobody reads what a worker writes after its master has died.
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (aOptions.memoryLimit != 0) {
        const rlim_t bytes = rlim_t{aOptions.memoryLimit} << 20U;
        const rlimit limit{bytes, bytes};
        ::setrlimit(RLIMIT_AS, &limit);
    }
    std::cout << GREETING << std::endl;
    for (std::string path; std::getline(std::cin, path, '\0');) {
        const std::string line = RecordOf(path, aOptions.request).dump(-1, ' ', false, Json::error_handler_t::replace);
        std::cout << line << std::endl;
        if (!std::cout) {
            return EXIT_WRONG_USE;
        }
    }
    return EXIT_DONE;
}

}  // namespace OrmoNitf::Catalogue
