#pragma once

// The public face of the library under the name that other programs use.
#include <tavorena/ta/TA.h>
