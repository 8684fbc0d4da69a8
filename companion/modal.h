#pragma once
// The one place where the library's forms are shown modally. A desktop program leaves it alone and gets
// QDialog::exec(); a program without a clerk (`nodrim batch`) or a test installs an executor that
// answers the form in place (fills its controls, presses a button) and returns the modal result.

#include "nod_widgets_export.h"

#include <functional>

class QDialog;

namespace nod NOD_WIDGETS_EXPORT {

/// Shows `d` modally and returns its modal result (1 accept, 2 cancel ...), through the executor installed
/// with `FijaEjecutorModal`, or `d.exec()` when there is none.
int EjecutaModal(QDialog& d);

using EjecutorModal = std::function<int(QDialog&)>;

/// Installs `e` for every form shown from now on and returns the one it replaces; an empty executor
/// restores exec().
EjecutorModal FijaEjecutorModal(EjecutorModal e);

/// Installs an executor for the lifetime of a scope.
class EjecutorModalInstalado {
public:
    explicit EjecutorModalInstalado(EjecutorModal e)
        : m_anterior(FijaEjecutorModal(std::move(e))) {}
    ~EjecutorModalInstalado() { FijaEjecutorModal(std::move(m_anterior)); }
    EjecutorModalInstalado(const EjecutorModalInstalado&) = delete;
    EjecutorModalInstalado& operator=(const EjecutorModalInstalado&) = delete;

private:
    EjecutorModal m_anterior;
};

} // namespace nod
