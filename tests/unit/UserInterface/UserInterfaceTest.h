// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Store/LMObjectContext.h"
#include "unit/Controller/ControllerTest.h"
#include "Utilities/LMNotificationCenter.h"

#include <QAbstractItemView>
#include <QApplication>

/// A controller on a fake desktop, and an application object for widgets. Whoever asks for it has
/// the store saved.
class UserInterfaceTest : public ControllerTest {
private:
    int m_argumentCount = 1;
    char m_name[5] = "rook";
    char* m_arguments[2] = {m_name, nullptr};

protected:
    UserInterfaceTest() {
        test.notificationCenter.addObserver(LMNotification::SaveWindows, &application, [this] {
            store.saveWindows();
            ++saves;
        });
    }
    /// Windows that were closed are deleted by an event loop, which no test has.
    void TearDown() override {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    LMObjectContext& context() { return store.managedObjectContext(); }
    static QStringList column(const QAbstractItemView& view, int column) {
        QStringList texts;
        for (int row = 0; row < view.model()->rowCount(); ++row)
            texts.append(view.model()->index(row, column).data().toString());
        return texts;
    }

    QApplication application{m_argumentCount, m_arguments};
    int saves = 0; ///< How often something asked for it.
};
