// SPDX-License-Identifier: MIT
#include "contract/LMContractTest.h"

#include <algorithm>

std::vector<LMContractBackendFactory> LMContractBackends() {
    return {
        {"Fake", LMMakeFakeContractBackend},
#ifdef ROOK_HAS_X11
        {"X11", LMMakeX11ContractBackend},
#endif
    };
}

void LMContractTest::SetUp() {
    backend = GetParam().create();
    QObject::connect(&desktop().applications(), &LMApplications::applicationLaunched, &desktop(),
                     [this](const QString& identifier) { launches.append(identifier); });
}

LMRunningApplication LMContractTest::running(const QString& identifier) {
    const auto all = desktop().applications().runningApplications();
    const auto found = std::ranges::find(all, identifier, &LMRunningApplication::bundleIdentifier);
    return found != all.end() ? *found : LMRunningApplication();
}

QList<LMElement> LMContractTest::windows(const QString& identifier) {
    const qint64 number = process(identifier);
    return number != 0 ? read<QList<LMElement>>(*accessibility().createApplication(number),
                                                LMAttribute::Windows)
                       : QList<LMElement>();
}

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
