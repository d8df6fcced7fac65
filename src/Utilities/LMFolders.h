// SPDX-License-Identifier: MIT
#pragma once

#include "Utilities/LMResult.h"

#include <QDate>
#include <QString>
#include <QVariantMap>

class LMLogger;

enum class LMSearchPathDirectory { ApplicationSupport = 14 };
enum class LMSearchPathDomain { User = 1, Local = 2, Network = 4, System = 8 };

/// Why a directory could not be had. The codes of the domain "DirectoryLocationDomain" are
/// NoPathFound and FileExists; a directory that could not be made has the domain
/// "POSIXErrorDomain" and the error number of the operating system.
struct LMDirectoryError {
    static constexpr int NoPathFound = 0;
    static constexpr int FileExists = 1;

    QString domain;
    int code = 0;
    QString description; ///< For the user, localized.
    QVariantMap
        userInfo; ///< "NSSearchPathDirectory", "NSSearchPathDomainMask": the numbers asked for.
};

/// Where Rook keeps its files: the folder "Rook" in the user's application-support directory, with
/// its subfolders. Folders are made on request, with mode 0700. All answers are absolute paths;
/// null stands for failure.
class LMFolders {
public:
    /// applicationSupportBase: the directory that holds the folder "Rook"; null when there is none.
    /// The logger must outlive this object.
    LMFolders(QString applicationSupportBase, const LMLogger& logger);

    /// The folders of the user who runs the program, below $XDG_DATA_HOME.
    static LMFolders forCurrentUser(const LMLogger& logger);

    LMResult<QString, LMDirectoryError> findDirectory(LMSearchPathDirectory directory,
                                                      LMSearchPathDomain domain,
                                                      const QString& appendPathComponent,
                                                      bool createIfNotFound) const;

    /// Logs a failure; the other folders fail silently. Takes from others the right to enter.
    QString applicationSupportDirectoryURL() const;
    QString screenshotsDirectoryURL() const;
    QString backupsDirectoryURL() const;
    QString logsDirectoryURL() const;

    /// The store file, whether or not it exists.
    QString storedWindowsURL() const;
    /// A new name for a screenshot; null in the unlikely case that it is taken.
    QString uniqueScreenshotURL() const;
    /// A free name for a backup of the store that storedVersion wrote; null when the first 101
    /// names of the day are taken.
    QString currentBackupURL(const QString& storedVersion, const QDate& today) const;

private:
    QString subdirectory(const QString& name) const;

    QString m_applicationSupportBase;
    const LMLogger* m_logger;
};
