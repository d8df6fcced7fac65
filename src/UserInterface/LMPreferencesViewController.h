// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QObject>
#include <QString>

class QWidget;

/// One pane of the preferences window. Its view is made when it is first shown; the controller
/// lives from launch on.
class LMPreferencesViewController : public QObject {
    Q_OBJECT
public:
    virtual QString identifier() const = 0;
    virtual QIcon toolbarItemImage() const = 0;
    virtual QString toolbarItemLabel() const = 0;

    /// Made anew; the caller owns it, and the controller uses it until it is gone.
    virtual QWidget* loadView() = 0;
    /// The view exists whenever these are called.
    virtual void viewWillAppear() {}
    virtual void viewDidDisappear() {}

protected:
    using QObject::QObject;
};

/// The drawing in the resources of that name, sharp at every scale.
QIcon LMPreferencesImage(const QString& name);
