// SPDX-License-Identifier: MIT
#include "spelling/Proofing.h"
