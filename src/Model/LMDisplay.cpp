// SPDX-License-Identifier: MIT
#include "Model/LMDisplay.h"

#include "Model/LMWorkspace.h"
#include "Model/Store/LMEntityDescription.h"

QString LMDisplay::entityName() {
    return QStringLiteral("Display");
}

LMEntityDescription LMDisplay::entityDescription() {
    return LMDescribeEntity<LMDisplay>(
        {
            LMDescribeAttribute<&LMDisplay::m_displayBounds>(QStringLiteral("displayBounds")),
            LMDescribeAttribute<&LMDisplay::m_productName>(QStringLiteral("productName")),
            LMDescribeAttribute<&LMDisplay::m_vendorNumber>(QStringLiteral("vendorNumber")),
            LMDescribeAttribute<&LMDisplay::m_modelNumber>(QStringLiteral("modelNumber")),
            LMDescribeAttribute<&LMDisplay::m_serialNumber>(QStringLiteral("serialNumber")),
        },
        LMWorkspace::entityName(), QStringLiteral("workspace"));
}

void LMDisplay::setDisplayBounds(const QString& displayBounds) {
    setAttribute(m_displayBounds, displayBounds);
}

void LMDisplay::setProductName(const QString& productName) {
    setAttribute(m_productName, productName);
}

void LMDisplay::setVendorNumber(const QString& vendorNumber) {
    setAttribute(m_vendorNumber, vendorNumber);
}

void LMDisplay::setModelNumber(const QString& modelNumber) {
    setAttribute(m_modelNumber, modelNumber);
}

void LMDisplay::setSerialNumber(const QString& serialNumber) {
    setAttribute(m_serialNumber, serialNumber);
}

LMWorkspace* LMDisplay::workspace() const {
    return static_cast<LMWorkspace*>(owner());
}
