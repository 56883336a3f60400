// SPDX-License-Identifier: MIT
#include "powerbuttons/CTool.h"
