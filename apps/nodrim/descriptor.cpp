#include "apps/nodrim/descriptor.h"

#include <cerrno>
#include <cstring>
#include <ios>
#include <poll.h>
#include <unistd.h>

namespace nod::lote {

namespace {

constexpr std::size_t kTamBuffer = 64 * 1024;

// Waits until a descriptor opened non-blocking by whoever started us is ready again.
void espera(int descriptor, short evento) {
    pollfd p{descriptor, evento, 0};
    ::poll(&p, 1, -1);
}

} // namespace

BufferDescriptor::BufferDescriptor(int descriptor, Sentido sentido)
    : m_descriptor(descriptor)
    , m_buffer(kTamBuffer) {
    if (sentido == Sentido::Escritura)
        setp(m_buffer.data(), m_buffer.data() + m_buffer.size());
    else
        setg(m_buffer.data(), m_buffer.data(), m_buffer.data());
}

BufferDescriptor::~BufferDescriptor() {
    vacia();
}

BufferDescriptor::int_type BufferDescriptor::underflow() {
    if (gptr() < egptr()) return traits_type::to_int_type(*gptr());
    for (;;) {
        const ssize_t n = ::read(m_descriptor, m_buffer.data(), m_buffer.size());
        if (n > 0) {
            setg(m_buffer.data(), m_buffer.data(), m_buffer.data() + n);
            return traits_type::to_int_type(*gptr());
        }
        if (n == 0) return traits_type::eof();
        if (errno == EINTR) continue;
        if (errno == EAGAIN || errno == EWOULDBLOCK) {
            espera(m_descriptor, POLLIN);
            continue;
        }
        m_error = errno;
        throw std::ios_base::failure(std::strerror(m_error));
    }
}

bool BufferDescriptor::vacia() {
    if (m_error) return false;
    if (!pbase()) return true; // a reading buffer
    const char* p = pbase();
    while (p < pptr()) {
        const ssize_t n = ::write(m_descriptor, p, std::size_t(pptr() - p));
        if (n >= 0) {
            p += n;
        } else if (errno == EAGAIN || errno == EWOULDBLOCK) {
            espera(m_descriptor, POLLOUT);
        } else if (errno != EINTR) {
            m_error = errno;
            return false;
        }
    }
    setp(m_buffer.data(), m_buffer.data() + m_buffer.size());
    return true;
}

BufferDescriptor::int_type BufferDescriptor::overflow(int_type c) {
    if (!pbase() || !vacia()) return traits_type::eof(); // no put area when reading
    if (!traits_type::eq_int_type(c, traits_type::eof())) {
        *pptr() = traits_type::to_char_type(c);
        pbump(1);
    }
    return traits_type::not_eof(c);
}

int BufferDescriptor::sync() {
    return vacia() ? 0 : -1;
}

} // namespace nod::lote
