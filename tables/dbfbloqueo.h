#pragma once
// Whole-file advisory locks on the office's tables. They are Linux open-file-description locks (F_OFD_*):
// they belong to one open of the file, not to the process, so closing another descriptor of the same file
// (shapelib's own, for instance) does not drop them, and `FicheroAbierto` sees them with F_OFD_GETLK.

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// An open descriptor of a table holding a lock; the lock and the descriptor go when it is destroyed.
class BloqueoFichero {
public:
    BloqueoFichero() = default;
    ~BloqueoFichero();
    BloqueoFichero(BloqueoFichero&& o) noexcept;
    BloqueoFichero& operator=(BloqueoFichero&& o) noexcept;
    BloqueoFichero(const BloqueoFichero&) = delete;
    BloqueoFichero& operator=(const BloqueoFichero&) = delete;

    /// Opens `ruta` and locks it whole (shared for reading, exclusive for writing), waiting up to
    /// `esperaMs` milliseconds for a holder elsewhere to let go. For writing it also makes sure the locked
    /// file is still the one at `ruta` (a pack may have renamed a new file into place while it waited).
    /// Throws ErrorTabla naming the file when it cannot be opened or the lock cannot be had in time.
    static BloqueoFichero Toma(const QString& ruta, bool escritura, int esperaMs);

    int descriptor() const { return m_fd; }
    bool activo() const { return m_fd >= 0; }
    void suelta();

private:
    int m_fd = -1;
};

/// The wait for a table's lock, from the configuration (`EsperaBloqueoTablas`).
int EsperaBloqueoConfigurada();

} // namespace nod
