// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// Fills the placeholders "%@", "%lu", "%ld", "%u" and "%d" of a format with the arguments in
/// order; "%1$@" (and "%2$lu" and so on) names its argument by number, for translations that need
/// another order. "%%" is a percent sign.
///
/// Arguments are put in as they are: placeholders in them are not filled again. A placeholder
/// without an argument stays as it stands, and so does anything else after a percent sign.
QString LMFormat(const QString& format, const QStringList& arguments);

/// The text for the user's language. The English text itself, in UTF-8, is the key; the sense tells
/// texts apart that are the same in English only.
QString LMLocalized(const char* key, const char* sense = nullptr);

/// Marks a text that reaches LMLocalized through a variable: the catalogues are made from the
/// literal arguments of both.
constexpr const char* LMLocalizable(const char* key, const char* /*sense*/ = nullptr) {
    return key;
}
