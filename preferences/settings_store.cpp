// SPDX-License-Identifier: MIT
#include "preferences/settings_store.h"
