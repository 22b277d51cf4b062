#pragma once

// The public face of the library under the name that other programs use.
#include <tavorena/calc/TA.h>
