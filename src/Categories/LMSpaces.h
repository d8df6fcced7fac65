// SPDX-License-Identifier: MIT
#pragma once

struct LMEnvironment;

/// Whether the user works with several spaces on one monitor, so that windows of other spaces come
/// within reach only when their application is shown. The user defaults "DisableSpacesSupport" and,
/// after it, "EnableSpacesSupport" overrule what the platform reports. Read afresh on every call.
bool LMSpacesInUse(LMEnvironment& environment);
