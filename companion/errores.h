#pragma once
// Errors that a routine raises where the suite's routines raise them (a date that cannot be built, a
// table that cannot be opened). Everything else reports failure by a neutral result.

#include "nod_core_export.h"

#include <QString>
#include <exception>
#include <string>

namespace nod NOD_CORE_EXPORT {

class ErrorNod : public std::exception {
public:
    explicit ErrorNod(QString mensaje)
        : m_mensaje(std::move(mensaje))
        , m_utf8(m_mensaje.toStdString()) {}
    const char* what() const noexcept override { return m_utf8.c_str(); }
    const QString& mensaje() const { return m_mensaje; }

private:
    QString m_mensaje;
    std::string m_utf8;
};

/// A text or number that cannot be converted (Delphi's EConvertError), e.g. an impossible date.
class EConvertError : public ErrorNod {
public:
    using ErrorNod::ErrorNod;
};

/// A table that cannot be opened, read or written.
class ErrorTabla : public ErrorNod {
public:
    using ErrorNod::ErrorNod;
};

/// A mail or fax that could not be sent: the message (Spanish, for the clerk) says what was refused or
/// failed and what, if anything, did go out. Nothing is sent half-way without this saying so.
class ErrorEnvio : public ErrorNod {
public:
    using ErrorNod::ErrorNod;
};

} // namespace nod
