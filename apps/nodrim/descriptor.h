#pragma once
// A stream buffer straight over a file descriptor, which keeps the reason (errno) of a read or write that
// failed: the standard streams lose it, and `nodrim` names it when it has to stop.

#include <streambuf>
#include <vector>

namespace nod::lote {

class BufferDescriptor : public std::streambuf {
public:
    enum class Sentido { Lectura, Escritura };

    BufferDescriptor(int descriptor, Sentido sentido);
    ~BufferDescriptor() override;
    BufferDescriptor(const BufferDescriptor&) = delete;
    BufferDescriptor& operator=(const BufferDescriptor&) = delete;

    /// errno of the first read or write that failed; 0 while none has.
    int error() const { return m_error; }

protected:
    /// A failed read raises, so that the reading stream marks itself bad rather than ended.
    int_type underflow() override;
    int_type overflow(int_type c) override;
    int sync() override;

private:
    bool vacia(); // writes out what is buffered; false once a write has failed
    int m_descriptor;
    std::vector<char> m_buffer;
    int m_error = 0;
};

} // namespace nod::lote
