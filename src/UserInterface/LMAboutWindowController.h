// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>

class QDialog;
class QWidget;

/// What the program knows about itself, under the names that bundles use for it.
struct LMBundleInformation {
    QString name;               ///< "CFBundleName"
    QString iconFile;           ///< "CFBundleIconFile": the path of a picture
    QString shortVersionString; ///< "CFBundleShortVersionString"; may be empty
    QString version;            ///< "CFBundleVersion", of the build; may be empty
};

/// "Version " and what is known of it; empty without a short version.
QString LMVersionText(const LMBundleInformation& bundle);

/// The window that says what this program is, and whose.
class LMAboutWindowController {
public:
    explicit LMAboutWindowController(LMBundleInformation bundle);
    ~LMAboutWindowController();

    /// Shows the window in the middle of the screen; one that is open elsewhere, perhaps on another
    /// virtual desktop, comes here.
    void showWindow();
    /// The window, null before it was shown.
    QWidget* window() const;

private:
    std::unique_ptr<QDialog> makeWindow() const;

    LMBundleInformation m_bundle;
    std::unique_ptr<QDialog> m_window;
};
