// SPDX-License-Identifier: MIT
#pragma once

class LMLogger;
class LMUserDefaults;

/// Registers the values of the resource "RegistrationDefaults" for all keys the user never set.
void LMRegisterDefaults(LMUserDefaults& userDefaults, const LMLogger& logger);
