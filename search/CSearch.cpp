// SPDX-License-Identifier: MIT
#include "search/CSearch.h"
