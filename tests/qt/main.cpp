#include "tests/qt/Palettes.h"

#include <QStyleFactory>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    // The desktop of the machine must not show in the pictures.
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(zqbchwcx::testing::LightPalette());
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
