#pragma once
// Screenshots of every dialog of the demo, for machines without a display: each dialog is opened, grabbed
// into <carpeta>/<nombre>.png once it has painted, and closed.

#include "apps/demo/ventanademo.h"

namespace nod::demo {

/// Opens every entry in turn and saves its picture; returns how many were written.
int CapturaTodos(VentanaDemo& ventana, const CatalogoDemo& catalogo, const QString& carpeta);

} // namespace nod::demo
