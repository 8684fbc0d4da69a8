#pragma once
// The prompt routines of the suite, all of them: one header per topic, this one for callers that want
// the whole family.

#include "prompts/borradoapuntes.h"
#include "prompts/preguntaselecciones.h"
#include "prompts/preguntasfacturas.h"
#include "prompts/preguntasfechas.h"
#include "prompts/preguntasficheros.h"
#include "prompts/preguntasnumeros.h"
