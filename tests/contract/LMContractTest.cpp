// SPDX-License-Identifier: MIT
#include "contract/LMContractTest.h"

std::vector<LMContractBackendFactory> LMContractBackends() {
    return {
        {"Fake", LMMakeFakeContractBackend},
#ifdef ROOK_HAS_X11
        {"X11", LMMakeX11ContractBackend},
#endif
    };
}

LMRunningApplication LMContractTest::running(const QString& application) {
    const QString identifier = backend->identifier(application);
    for (const auto& candidate : desktop().applications().runningApplications()) {
        if (candidate.bundleIdentifier == identifier)
            return candidate;
    }
    return {};
}

QList<LMElement> LMContractTest::windows(const QString& application) {
    const auto element = accessibility().createApplication(process(application));
    return element ? read<QList<LMElement>>(*element, LMAttribute::Windows) : QList<LMElement>();
}

std::optional<LMPlatformError> LMContractTest::readError(const LMElement& element,
                                                         QLatin1String attribute) {
    const auto value = accessibility().copyAttributeValue(element, attribute);
    return value ? std::nullopt : std::optional(value.error());
}

std::optional<LMPlatformError> LMContractTest::setError(const LMElement& element,
                                                        QLatin1String attribute,
                                                        const LMAttributeValue& value) {
    const auto status = accessibility().setAttributeValue(element, attribute, value);
    return status ? std::nullopt : std::optional(status.error());
}

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
