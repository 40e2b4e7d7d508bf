#include "cli/standard_output.h"

#include <cerrno>
#include <cstring>
#include <poll.h>
#include <unistd.h>

namespace gw::cli {

StandardOutput::Buffer::Buffer(int fd) : m_fd(fd) { setp(m_data, m_data + sizeof m_data); }

bool StandardOutput::Buffer::Drain() {
    const char* from = pbase();
    const char* to = pptr();
    while (m_error == 0 && from < to) {
        const ssize_t n = ::write(m_fd, from, static_cast<size_t>(to - from));
        if (n > 0) {
            from += n;
        } else if (n < 0 && errno == EINTR) {
            continue;
        } else if (n < 0 && (errno == EAGAIN || errno == EWOULDBLOCK)) {
            // Someone left the descriptor non-blocking: wait for room rather than fail.
            pollfd ready{m_fd, POLLOUT, 0};
            ::poll(&ready, 1, -1);
        } else {
            m_error = n < 0 ? errno : EIO;
        }
    }
    // After a failure the rest is dropped: nothing more can arrive in order.
    setp(m_data, m_data + sizeof m_data);
    return m_error == 0;
}

StandardOutput::Buffer::int_type StandardOutput::Buffer::overflow(int_type c) {
    if (!Drain()) return traits_type::eof();
    if (!traits_type::eq_int_type(c, traits_type::eof())) {
        *pptr() = traits_type::to_char_type(c);
        pbump(1);
    }
    return traits_type::not_eof(c);
}

int StandardOutput::Buffer::sync() { return Drain() ? 0 : -1; }

StandardOutput::StandardOutput(int fd) : m_buffer(fd), m_stream(&m_buffer) {}

bool StandardOutput::Finish(std::ostream& err) {
    m_stream.flush();
    if (m_buffer.Error() == 0 && m_stream.good()) return true;
    err << "gradewise-cli: cannot write to standard output: "
        << std::strerror(m_buffer.Error() != 0 ? m_buffer.Error() : EIO) << "\n";
    return false;
}

}  // namespace gw::cli
