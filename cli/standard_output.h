#pragma once
// Standard output of the command-line programs: every byte goes through this buffer
// to the file descriptor, and Finish() says whether all of it arrived, so that a full
// disk or /dev/full is an error with a message, never a silent success.

#include <ostream>
#include <streambuf>

namespace gw::cli {

class StandardOutput {
public:
    explicit StandardOutput(int fd = 1);
    StandardOutput(const StandardOutput&) = delete;
    StandardOutput& operator=(const StandardOutput&) = delete;

    std::ostream& Stream() { return m_stream; }

    // Writes what is left; false, with the reason written to `err`, when any byte could
    // not be written.
    bool Finish(std::ostream& err);

private:
    class Buffer final : public std::streambuf {
    public:
        explicit Buffer(int fd);
        int Error() const { return m_error; }

    protected:
        int_type overflow(int_type c) override;
        int sync() override;

    private:
        bool Drain();

        int m_fd;
        int m_error = 0;  // errno of the first failed write
        char m_data[65536];
    };

    Buffer m_buffer;
    std::ostream m_stream;
};

}  // namespace gw::cli
