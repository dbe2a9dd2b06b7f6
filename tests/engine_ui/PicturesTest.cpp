// Pictures of every window, light and dark, in both directions. If PELNAR_PICTURES names a folder, they are saved
// there. The test checks that text has enough contrast with its background.

#include "Engine/ui/Translations.h"
#include "tests/engine_ui/WindowsFixture.h"

#include <QDir>
#include <QImage>
#include <QPalette>
#include <QPixmap>
#include <QStyleFactory>
#include <QTextBrowser>

#include <cmath>

namespace Pelnar::Testing
{
namespace
{

struct Look
{
    char const* name;
    QColor window;
    QColor base;
    QColor text;
    QColor link;
};

QPalette PaletteOf(Look const& look)
{
    QPalette palette(look.window);
    for (QPalette::ColorRole const role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    {
        palette.setColor(role, look.text);
    }
    palette.setColor(QPalette::Base, look.base);
    palette.setColor(QPalette::Link, look.link);
    return palette;
}

double Luminance(QColor const& color)
{
    auto const linear = [](double part)
    { return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double Contrast(QColor const& a, QColor const& b)
{
    double const brighter = std::max(Luminance(a), Luminance(b));
    double const darker = std::min(Luminance(a), Luminance(b));
    return (brighter + 0.05) / (darker + 0.05);
}

/// The greatest contrast between any pixel of \a image and the one in its corner.
double GreatestContrast(QImage const& image)
{
    QColor const corner = image.pixelColor(1, 1);
    double greatest = 1;
    for (int y = 0; y < image.height(); ++y)
    {
        for (int x = 0; x < image.width(); ++x)
        {
            greatest = std::max(greatest, Contrast(corner, image.pixelColor(x, y)));
        }
    }
    return greatest;
}

using Pictures = EveryWindow;

INSTANTIATE_TEST_SUITE_P(Windows, Pictures, ::testing::ValuesIn(AllWindowCases()), WindowCaseName);

TEST_P(Pictures, ShowReadableTextInLightAndDarkAndInBothDirections)
{
    std::vector<Look> const looks = {
        {"light", QColor(0xEF, 0xEF, 0xEF), Qt::white, QColor(0x20, 0x20, 0x20), QColor(0x00, 0x4C, 0xA8)},
        {"dark", QColor(0x2B, 0x2B, 0x2E), QColor(0x1E, 0x1E, 0x20), QColor(0xE6, 0xE6, 0xE6),
         QColor(0x7A, 0xB7, 0xFF)},
    };
    QString const folder = qEnvironmentVariable("PELNAR_PICTURES");
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    for (Look const& look : looks)
    {
        QApplication::setPalette(PaletteOf(look));
        for (char const* const language : {"en", "de", "ja", "ar"})
        {
            QLocale::setDefault(QLocale(QString::fromLatin1(language)));
            Engine::InstallTranslations(QLocale());
            Show(GetParam());
            QCoreApplication::processEvents();
            QWidget* const window = WindowOf(GetParam());
            QImage const picture = window->grab().toImage();
            EXPECT_GE(Contrast(picture.pixelColor(1, 1), look.window), 1.0);
            EXPECT_LT(Contrast(picture.pixelColor(1, 1), look.window), 1.3) << "the palette is followed";
            EXPECT_GE(GreatestContrast(Part<QWidget>("PelnarEngine_heading")->grab().toImage()), 7.0) << look.name;
            if (auto* const notes = window->findChild<QTextBrowser*>())
            {
                EXPECT_GE(GreatestContrast(notes->viewport()->grab().toImage()), 7.0) << look.name;
            }
            if (!folder.isEmpty())
            {
                QString const name =
                    QStringLiteral("%1-%2-%3.png")
                        .arg(QLatin1String(GetParam().name), QLatin1String(look.name), QLatin1String(language));
                EXPECT_TRUE(QDir().mkpath(folder) && picture.save(QDir(folder).filePath(name)));
            }
        }
    }
}

} // namespace
} // namespace Pelnar::Testing
