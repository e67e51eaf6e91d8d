// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

// Saves under faults: every system call of a save is made to fail, and the process is killed before each.

#include "formats/project/ProjectFile.h"

#include "model/BaseLogPassRecord.h"
#include "model/DataContainer.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QFile>

#if defined(__linux__) && defined(__x86_64__)
#include <cerrno>
#include <csignal>
#include <cstring>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {
enum class Lasting
{
    Once,
    SameKind, ///< later calls of the same kind fail too
    All       ///< every later call fails too
};

struct Fault
{
    int call = -1; ///< strikes the call of this number, counted from 0; before any: none
    int error = 0; ///< errno of the failing call; 0 kills the process instead
    Lasting lasting = Lasting::Once;
};

struct Outcome
{
    bool was_killed = false;
    std::string message; ///< empty when the save tells success
    int calls = 0;       ///< that could be struck
    std::set<std::string> kinds_struck;
};

/// The calls that can meet a full disk or a broken one.
char const* KindOf(std::uint64_t call)
{
    switch (call) {
    case SYS_open:
    case SYS_openat:
        return "open";
    case SYS_write:
    case SYS_writev:
    case SYS_pwrite64:
        return "write";
    case SYS_lseek:
        return "seek";
    case SYS_fsync:
    case SYS_fdatasync:
        return "flush";
    case SYS_rename:
    case SYS_renameat:
    case SYS_renameat2:
        return "rename";
    case SYS_close:
        return "close";
    case SYS_unlink:
    case SYS_unlinkat:
    case SYS_rmdir:
        return "remove";
    case SYS_mkdir:
    case SYS_mkdirat:
        return "make folder";
    default:
        return nullptr;
    }
}

/// The sanitizers probe memory by writing it to a pipe.
bool IsPipeWrite(::pid_t process, ::user_regs_struct const& registers)
{
    auto const link = "/proc/" + std::to_string(process) + "/fd/" + std::to_string(registers.rdi);
    char target[5] = {};
    return registers.orig_rax == SYS_write && ::readlink(link.c_str(), target, sizeof(target)) > 0 &&
           std::memcmp(target, "pipe:", sizeof(target)) == 0;
}

class SaveFaultTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        QDir(folder_.Path("")).mkdir("saves");
        // More samples than the stream buffers, and few items, for each takes seven calls.
        std::vector<double> depths(3000, 1.0);
        container_.AddSurvey(1, "S");
        container_.AddDepthLogPass(1, std::make_shared<DepthLogPass>(BASE_LOGPASS_STRUCT(),
                                                                     BaseLog::DataMatrix(), true, 0.0F, 1.0F,
                                                                     depths));
        project_file::Save(path_, container_, {}, 1);
        whole_ = test_files::Read(path_);
        if (Save({}).calls < 0) {
            GTEST_SKIP() << "processes cannot be traced here";
        }
    }

    [[noreturn]] void SaveInChild(int message_pipe)
    {
        if (::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) {
            ::_exit(2);
        }
        std::string message;
        ::raise(SIGSTOP); // from here
        try {
            project_file::Save(path_, container_, {}, 1);
        } catch (std::exception const& error) {
            message = error.what();
        }
        ::raise(SIGSTOP); // to here
        ::_exit(::write(message_pipe, message.data(), message.size()) < 0 ? 1 : 0);
    }

    /// Runs the child from stop to stop and strikes as told.
    Outcome Trace(::pid_t child, Fault const& fault)
    {
        Outcome outcome;
        int status = 0;
        ::waitpid(child, &status, 0);
        if (!WIFSTOPPED(status)) {
            outcome.calls = -1;
            return outcome;
        }
        ::ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
        std::string struck_kind;
        bool is_entry = true;
        bool is_struck = false;
        while (true) {
            ::ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
            ::waitpid(child, &status, 0);
            if (!WIFSTOPPED(status) || WSTOPSIG(status) != (SIGTRAP | 0x80)) {
                EXPECT_TRUE(WIFSTOPPED(status) && WSTOPSIG(status) == SIGSTOP)
                    << "the save ended the process";
                break;
            }
            ::user_regs_struct registers{};
            ::ptrace(PTRACE_GETREGS, child, nullptr, &registers);
            if (is_entry) {
                auto const* const kind = IsPipeWrite(child, registers) ? nullptr : KindOf(registers.orig_rax);
                bool const is_counted = fault.error == 0 || kind;
                bool const is_later = kind && ((fault.lasting == Lasting::SameKind && kind == struck_kind) ||
                                               (fault.lasting == Lasting::All && !struck_kind.empty()));
                is_struck = is_counted && (outcome.calls == fault.call || is_later);
                outcome.calls += is_counted ? 1 : 0;
                if (is_struck && fault.error == 0) {
                    ::kill(child, SIGKILL);
                    ::waitpid(child, &status, 0);
                    outcome.was_killed = true;
                    return outcome;
                }
                if (is_struck) {
                    struck_kind = kind;
                    outcome.kinds_struck.insert(kind);
                    // A failing close still closes.
                    registers.orig_rax = struck_kind == "close" ? SYS_close : ~0ULL;
                    ::ptrace(PTRACE_SETREGS, child, nullptr, &registers);
                }
            } else if (is_struck) {
                registers.rax = static_cast<std::uint64_t>(-static_cast<std::int64_t>(fault.error));
                ::ptrace(PTRACE_SETREGS, child, nullptr, &registers);
            }
            is_entry = !is_entry;
        }
        ::ptrace(PTRACE_DETACH, child, nullptr, nullptr);
        return outcome;
    }

    Outcome Save(Fault const& fault)
    {
        int ends[2] = {};
        if (::pipe(ends) != 0) {
            ADD_FAILURE() << "no pipe";
            return {};
        }
        ::pid_t const child = ::fork();
        if (child == 0) {
            SaveInChild(ends[1]);
        }
        ::close(ends[1]);
        auto outcome = Trace(child, fault);
        char text[1000];
        for (::ssize_t length = 0; (length = ::read(ends[0], text, sizeof(text))) > 0;) {
            outcome.message.append(text, static_cast<std::size_t>(length));
        }
        ::close(ends[0]);
        int status = 0;
        if (!outcome.was_killed && ::waitpid(child, &status, 0) == child) {
            EXPECT_TRUE(outcome.calls < 0 || (WIFEXITED(status) && WEXITSTATUS(status) == 0)) << status;
        }
        return outcome;
    }

    static std::optional<QByteArray> Content(QString const& path)
    {
        return QFile::exists(path) ? std::optional(test_files::Read(path)) : std::nullopt;
    }

    /// Puts `before` there, saves with the fault, and looks what stands there.
    Outcome Check(std::optional<QByteArray> const& before, Fault const& fault)
    {
        QDir(folder_.Path("saves")).removeRecursively();
        QDir(folder_.Path("")).mkdir("saves");
        if (before) {
            folder_.Write("saves/a.qz4", *before);
        }
        auto outcome = Save(fault);
        auto const after = Content(path_);
        bool const is_new = after == whole_;
        bool const is_old = after == before;
        std::string const reason = std::strerror(fault.error);
        bool const is_set_aside = !after && Content(path_ + ".tmp") == before;
        if (outcome.was_killed) {
            EXPECT_TRUE(is_new || is_old || is_set_aside) << fault.call;
        } else if (outcome.message.empty()) {
            EXPECT_TRUE(is_new) << fault.call;
        } else {
            // Set aside only where not even the renaming back was possible, and this is told.
            bool const is_told = outcome.message.find("a.qz4.tmp") != std::string::npos;
            EXPECT_TRUE(is_old || (is_set_aside && is_told && fault.lasting == Lasting::All)) << fault.call;
            EXPECT_NE(outcome.message.find(reason), std::string::npos) << outcome.message;
        }
        return outcome;
    }

    test_files::Folder folder_;
    QString path_ = folder_.Path("saves/a.qz4");
    DataContainer container_;
    QByteArray whole_;
};

TEST_F(SaveFaultTest, KilledAnywhereAWholeFileStands)
{
    for (auto const& before : {std::optional<QByteArray>("the older project"), std::optional<QByteArray>()}) {
        int call = 0;
        while (Check(before, {call, 0}).was_killed) {
            ++call;
        }
        EXPECT_GT(call, 50); // it did come by way of many calls
        EXPECT_EQ(Content(path_), whole_);
    }
}

TEST_F(SaveFaultTest, EveryFailingCallKeepsAWholeFileAndIsReported)
{
    QByteArray const before = "the older project";
    std::set<std::string> kinds;
    std::set<std::string> reported;
    int failing = 0;
    int const count = Check(before, {-1, EIO}).calls;
    for (int call = 0; call < count; ++call) {
        for (auto const& fault :
             {Fault{call, ENOSPC}, Fault{call, EIO, Lasting::SameKind}, Fault{call, EIO, Lasting::All}}) {
            auto const outcome = Check(before, fault);
            kinds.insert(outcome.kinds_struck.begin(), outcome.kinds_struck.end());
            failing += outcome.message.empty() ? 0 : 1;
            if (!outcome.message.empty() && fault.lasting == Lasting::Once) {
                reported.insert(outcome.kinds_struck.begin(), outcome.kinds_struck.end());
            }
        }
    }
    EXPECT_EQ(kinds, (std::set<std::string>{"open", "write", "seek", "flush", "rename", "close", "remove",
                                            "make folder"}));
    EXPECT_EQ(reported, (std::set<std::string>{"open", "write", "seek", "flush", "close"}));
    EXPECT_GT(failing, count);
}
} // namespace
#endif
