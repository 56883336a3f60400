// SPDX-License-Identifier: MIT
#include "text/cTextMethods.h"
