// SPDX-License-Identifier: MIT
#pragma once

#include "unit/Controller/ControllerTest.h"

#include <QApplication>

/// A controller on a fake desktop, and an application object for widgets.
class UserInterfaceTest : public ControllerTest {
private:
    int m_argumentCount = 1;
    char m_name[5] = "rook";
    char* m_arguments[2] = {m_name, nullptr};

protected:
    /// Windows that were closed are deleted by an event loop, which no test has.
    void TearDown() override {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QApplication application{m_argumentCount, m_arguments};
};
