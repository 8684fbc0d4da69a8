#pragma once
// `nodrim revision [--office DIR] [--table NAME] [--pdf FILE]`: the client-code revision for unattended
// use. Its lines go to standard output, one per line, "TABLA<tab>MENSAJE<tab>CODCLIENTE" (UTF-8); with
// --table only that table is revised (in its modes of the all-tables run); with --pdf the printed list is
// also written to FILE. Messages for the clerk go to standard error. Exit status 0 when the revision ran
// (whatever it found), 1 when it could not (no clients table, the PDF not written), 2 for a wrong command.

namespace nod::lote {

/// When the command is `revision` (the first word that is not an option), runs it and returns its exit
/// status; otherwise returns -1 and creates nothing, leaving the command to main.
int MainRevisionSiToca(int argc, char** argv);

} // namespace nod::lote
