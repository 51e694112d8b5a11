#include "platform/desktop/local_hand_over.h"
#include "real_time.h"
#include "temporary_folder.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstring>
#include <optional>
#include <vector>

namespace zephyne::test {
namespace {

using Log = std::vector<std::string>;
constexpr uid_t kSomebodyElse = 65534;

class HandOverTest : public testing::Test, public RealTime {
  protected:
    HandOverTest() {
        if (const char* previous = std::getenv("XDG_RUNTIME_DIR")) previous_ = previous;
        ::setenv("XDG_RUNTIME_DIR", folder_.root.c_str(), 1);
    }
    ~HandOverTest() override {
        ::unsetenv("XDG_RUNTIME_DIR");
        if (previous_) ::setenv("XDG_RUNTIME_DIR", previous_->c_str(), 1);
    }

    // Takes the place, and writes down what reaches this copy.
    void take_place(LocalHandOver& copy) {
        copy.on_bring_forward = [this] { log_.emplace_back("forward"); };
        copy.on_poke = [this](const std::string& text) { log_.push_back("poke " + text); };
        EXPECT_FALSE(copy.another_copy_runs());
    }
    void expect_heard(const Log& expected) {
        EXPECT_TRUE(log_.empty()) << "heard from the event loop only";
        run_until([&] { return log_.size() >= expected.size(); });
        EXPECT_EQ(log_, expected);
    }

    // A copy in a process of its own, which takes the place and then never answers.
    pid_t start_silent_copy() {
        int ends[2];
        if (::pipe(ends) != 0) return -1;
        const pid_t child = ::fork();
        if (child == 0) {
            LocalHandOver copy(scheduler_, "test");
            const char answer = copy.another_copy_runs() ? '1' : '0';
            if (::write(ends[1], &answer, 1) == 1) ::pause();
            ::_exit(0);
        }
        char answer = 0;
        EXPECT_EQ(::read(ends[0], &answer, 1), 1);
        EXPECT_EQ(answer, '0');
        ::close(ends[0]);
        ::close(ends[1]);
        return child;
    }
    static void kill(pid_t child) {
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
    }

    sockaddr_un address() const {
        sockaddr_un result{};
        result.sun_family = AF_UNIX;
        std::strncpy(result.sun_path, folder_.path("test.socket").c_str(),
                     sizeof result.sun_path - 1);
        return result;
    }
    void send_raw(const std::string& message) const {
        const Descriptor socket(::socket(AF_UNIX, SOCK_DGRAM, 0));
        const sockaddr_un to = address();
        EXPECT_EQ(::sendto(socket.number(), message.data(), message.size(), 0,
                           reinterpret_cast<const sockaddr*>(&to), sizeof to),
                  static_cast<ssize_t>(message.size()));
    }

    TemporaryFolder folder_;
    std::optional<std::string> previous_;
    Log log_;
};

TEST_F(HandOverTest, SecondCopyFindsThePlaceTakenAndIsHeardInOrder) {
    LocalHandOver first(scheduler_, "test");
    LocalHandOver second(scheduler_, "test");
    take_place(first);
    EXPECT_TRUE(second.another_copy_runs());
    EXPECT_FALSE(first.another_copy_runs()) << "it must not mistake itself for another";

    const std::string bytes("/m/\xE9t\xE9 | \n\0.mid", 15);
    const std::string longest(LocalHandOver::longest_command_line, 'x');
    second.bring_forward();
    second.poke(bytes);
    second.poke("");
    second.poke(longest);
    expect_heard({"forward", "poke " + bytes, "poke ", "poke " + longest});
}

TEST_F(HandOverTest, PlaceIsItsHoldersOfThatNameUntilHeEnds) {
    LocalHandOver next(scheduler_, "test");
    {
        LocalHandOver first(scheduler_, "test");
        take_place(first);
        EXPECT_TRUE(next.another_copy_runs());
        for (const char* name : {"another", "another/../test"}) {
            EXPECT_FALSE(LocalHandOver(scheduler_, name).another_copy_runs());
        }
    }
    EXPECT_FALSE(next.another_copy_runs());
}

TEST_F(HandOverTest, PlaceOfACrashedCopyIsTakenOver) {
    const pid_t crashing = start_silent_copy();
    LocalHandOver next(scheduler_, "test");
    EXPECT_TRUE(next.another_copy_runs());
    kill(crashing);
    ASSERT_TRUE(std::filesystem::exists(folder_.path("test.socket"))) << "it was to be left";

    take_place(next);
    LocalHandOver third(scheduler_, "test");
    EXPECT_TRUE(third.another_copy_runs());
    third.poke("song.mid");
    expect_heard({"poke song.mid"});
}

TEST_F(HandOverTest, FrozenCopyHoldsNobodyUp) {
    const pid_t frozen = start_silent_copy();
    const Milliseconds start = clock_.now();
    LocalHandOver second(scheduler_, "test", 30);
    EXPECT_TRUE(second.another_copy_runs());
    // More than the system keeps for a reader that never comes: the rest is given up, not waited
    // for, each message by itself even less.
    for (int i = 0; i < 5000; ++i) second.bring_forward();
    EXPECT_LT(clock_.now() - start, kTooLong);
    kill(frozen);
}

TEST_F(HandOverTest, MessagesThatAreTooLongOrUnknownAreDropped) {
    LocalHandOver first(scheduler_, "test");
    take_place(first);
    send_raw("poke " + std::string(LocalHandOver::longest_command_line + 1, 'x'));
    for (const char* message : {"forwards", "poke", "", "forward"}) send_raw(message);
    expect_heard({"forward"});
}

TEST_F(HandOverTest, MessagesOfAnotherUserAreDropped) {
    if (::geteuid() != 0) GTEST_SKIP() << "only the administrator can become another user";
    LocalHandOver first(scheduler_, "test");
    take_place(first);
    const pid_t child = ::fork();
    if (child == 0) {
        const int socket = ::socket(AF_UNIX, SOCK_DGRAM, 0);
        const sockaddr_un to = address();
        const bool sent =
            ::connect(socket, reinterpret_cast<const sockaddr*>(&to), sizeof to) == 0 &&
            ::setuid(kSomebodyElse) == 0 && ::send(socket, "poke evil", 9, 0) == 9;
        ::_exit(sent ? 0 : 1);
    }
    int status = -1;
    ::waitpid(child, &status, 0);
    ASSERT_EQ(status, 0) << "the message was never sent";
    send_raw("poke mine");
    expect_heard({"poke mine"});
}

TEST_F(HandOverTest, FolderThatOthersCanEnterIsNotUsed) {
    std::filesystem::permissions(folder_.root, std::filesystem::perms(0755));
    ::setenv("TMPDIR", folder_.root.c_str(), 1);
    LocalHandOver first(scheduler_, "test");
    take_place(first);
    ::unsetenv("TMPDIR");

    const std::string own = folder_.path("zephyne-" + std::to_string(::geteuid()));
    const auto mode_of = [](const std::string& path) {
        struct stat status {};
        EXPECT_EQ(::stat(path.c_str(), &status), 0) << path;
        return status.st_mode & 0777U;
    };
    EXPECT_EQ(mode_of(own), 0700U);
    EXPECT_EQ(mode_of(own + "/test.socket"), 0600U);
    EXPECT_EQ(mode_of(own + "/test.lock"), 0600U);
}

}  // namespace
}  // namespace zephyne::test
