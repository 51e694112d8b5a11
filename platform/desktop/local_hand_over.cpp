#include "platform/desktop/local_hand_over.h"

#include "core/paths.h"
#include "platform/desktop/steady_clock.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <utility>
#include <vector>

namespace zephyne {
namespace {

constexpr std::string_view kForward = "forward";
constexpr std::string_view kPoke = "poke ";
constexpr int kRetryMilliseconds = 10;

// A folder that belongs to the user and that nobody else can enter.
bool is_private(const std::string& folder) {
    struct stat status {};
    return ::lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
           status.st_uid == ::geteuid() && (status.st_mode & 077U) == 0;
}

// Without a folder of the session, one among the temporary files, where others can write too:
// it is used only if it is really ours.
std::string private_folder() {
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    if (runtime && is_private(runtime)) return runtime;
    const char* temporary = std::getenv("TMPDIR");
    const std::string folder = joined(temporary && *temporary ? temporary : "/tmp",
                                      "zephyne-" + std::to_string(::geteuid()), PathStyle::posix);
    ::mkdir(folder.c_str(), 0700);
    return is_private(folder) ? folder : "";
}

std::optional<sockaddr_un> address_of(const std::string& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.empty() || path.size() >= sizeof address.sun_path) return std::nullopt;
    std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
    return address;
}

Descriptor datagram_socket() {
    return Descriptor(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
}

// The user who sent a datagram, as the kernel vouches for it.
std::optional<uid_t> sender_of(msghdr& header) {
    for (cmsghdr* part = CMSG_FIRSTHDR(&header); part; part = CMSG_NXTHDR(&header, part)) {
        if (part->cmsg_level != SOL_SOCKET || part->cmsg_type != SCM_CREDENTIALS) continue;
        ucred sender{};
        std::memcpy(&sender, CMSG_DATA(part), sizeof sender);
        return sender.uid;
    }
    return std::nullopt;
}

// The place is being taken just now, or its holder is behind with its messages.
bool may_pass(int error_number) {
    return error_number == ENOENT || error_number == ECONNREFUSED || error_number == EAGAIN ||
           error_number == ENOBUFS || error_number == EINTR;
}

}  // namespace

LocalHandOver::LocalHandOver(Scheduler& scheduler, std::string name, Milliseconds patience)
    : events_(scheduler), patience_(patience) {
    std::replace(name.begin(), name.end(), '/', '_');
    const std::string folder = private_folder();
    if (folder.empty()) return;
    lock_path_ = joined(folder, name + ".lock", PathStyle::posix);
    socket_path_ = joined(folder, name + ".socket", PathStyle::posix);
}

LocalHandOver::~LocalHandOver() {
    // The lock file stays: another copy may be waiting at it. The socket goes while the lock is
    // still held, so that it is surely our own.
    if (socket_) ::unlink(socket_path_.c_str());
}

std::string LocalHandOver::name_from_environment() {
    const char* name = std::getenv("ZEPHYNE_INSTANCE");
    return name && *name ? name : "zephyne";
}

bool LocalHandOver::another_copy_runs() {
    if (lock_ || lock_path_.empty()) return false;
    Descriptor lock(::open(lock_path_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
    if (!lock) return false;
    if (::flock(lock.number(), LOCK_EX | LOCK_NB) != 0) return errno == EWOULDBLOCK;
    lock_ = std::move(lock);
    listen();
    return false;
}

void LocalHandOver::listen() {
    const auto address = address_of(socket_path_);
    Descriptor socket = datagram_socket();
    if (!address || !socket) return;
    ::unlink(socket_path_.c_str());  // left by a copy that crashed: we hold the lock
    const int on = 1;
    ::setsockopt(socket.number(), SOL_SOCKET, SO_PASSCRED, &on, sizeof on);
    if (::bind(socket.number(), reinterpret_cast<const sockaddr*>(&*address), sizeof *address)) {
        return;
    }
    ::chmod(socket_path_.c_str(), 0600);
    socket_ = std::move(socket);
    notifier_ = std::make_unique<QSocketNotifier>(socket_.number(), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [this] { receive(); });
}

void LocalHandOver::receive() {
    std::vector<char> buffer(kPoke.size() + longest_command_line);
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(ucred))> control{};
    while (true) {
        iovec data{buffer.data(), buffer.size()};
        msghdr header{};
        header.msg_iov = &data;
        header.msg_iovlen = 1;
        header.msg_control = control.data();
        header.msg_controllen = control.size();
        const auto length = ::recvmsg(socket_.number(), &header, MSG_DONTWAIT | MSG_CMSG_CLOEXEC);
        if (length < 0 && errno == EINTR) continue;
        if (length < 0) return;
        const bool whole = (header.msg_flags & MSG_TRUNC) == 0;
        if (whole && sender_of(header) == ::geteuid()) {
            handle({buffer.data(), static_cast<std::size_t>(length)});
        }
    }
}

void LocalHandOver::handle(std::string_view message) {
    if (message == kForward) {
        events_.post([this] {
            if (on_bring_forward) on_bring_forward();
        });
    } else if (message.starts_with(kPoke)) {
        message.remove_prefix(kPoke.size());
        events_.post([this, text = std::string(message)] {
            if (on_poke) on_poke(text);
        });
    }
}

void LocalHandOver::bring_forward() {
    send(kForward);
}

void LocalHandOver::poke(std::string_view command_line) {
    if (command_line.size() > longest_command_line) return;
    send(std::string(kPoke).append(command_line));
}

void LocalHandOver::send(std::string_view message) {
    const auto address = address_of(socket_path_);
    const Descriptor socket = datagram_socket();
    if (nobody_answers_ || !address || !socket) return;

    const SteadyClock clock;
    const Milliseconds deadline = clock.now() + patience_;
    while (::sendto(socket.number(), message.data(), message.size(), MSG_NOSIGNAL,
                    reinterpret_cast<const sockaddr*>(&*address), sizeof *address) < 0) {
        if (!may_pass(errno) || clock.now() >= deadline) {
            nobody_answers_ = true;
            return;
        }
        ::poll(nullptr, 0, kRetryMilliseconds);
    }
}

}  // namespace zephyne
