#include <style/BaseStyle.h>

#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyleOption>

#include <support/TestedMode.h>
#include <support/Text.h>
#include <support/themes/IconTheme.h>
#include <support/themes/UniqueTheme.h>

using TARN::BaseStyle;

Q_DECLARE_METATYPE(QStyle::StandardPixmap)

namespace {

/// An icon by default, and in the complete mode where that has another one.
struct IconRow
{
    QStyle::StandardPixmap pixmap;
    const char *byDefault; ///< null where it is the base style's
    const char *complete = byDefault;

    QString name() const { return text(testsCompleteMode() ? complete : byDefault); }
    bool isLeft() const { return !byDefault && !testsCompleteMode(); }
};

constexpr IconRow iconRows[] = {
    {QStyle::SP_TitleBarMenuButton, nullptr, "action.menu"},
    {QStyle::SP_TitleBarShadeButton, nullptr, "chevron.up"},
    {QStyle::SP_TitleBarUnshadeButton, nullptr, "chevron.down"},
    {QStyle::SP_TitleBarContextHelpButton, nullptr, "action.help"},
    {QStyle::SP_TitleBarMinButton, "action.app.minimize"},
    {QStyle::SP_TitleBarMaxButton, "action.app.maximize"},
    {QStyle::SP_TitleBarNormalButton, "action.app.maximize", "action.app.restore"},
    {QStyle::SP_TitleBarCloseButton, "action.close"},
    {QStyle::SP_DockWidgetCloseButton, "action.close"},
    {QStyle::SP_DialogCloseButton, "action.close"},
    {QStyle::SP_LineEditClearButton, "action.close"},
    {QStyle::SP_MessageBoxInformation, "status.info.circular.colored"},
    {QStyle::SP_MessageBoxWarning, "status.warning.circular.colored"},
    {QStyle::SP_MessageBoxCritical, "status.danger.circular.colored"},
    {QStyle::SP_MessageBoxQuestion, "status.help.circular.colored"},
    {QStyle::SP_TrashIcon, "action.delete"},
    {QStyle::SP_ArrowUp, "arrow.up.small"},
    {QStyle::SP_ArrowDown, "arrow.down.small"},
    {QStyle::SP_ArrowLeft, "arrow.left.small"},
    {QStyle::SP_ArrowBack, "arrow.left.small"},
    {QStyle::SP_ArrowRight, "arrow.right.small"},
    {QStyle::SP_ArrowForward, "arrow.right.small"},
    {QStyle::SP_CommandLink, "arrow.right.small"},
};

/// The first ones have a picture, too.
constexpr int pixmapRowCount = 10;

constexpr QStyle::StandardPixmap extensions[] = {QStyle::SP_ToolBarHorizontalExtensionButton,
                                                 QStyle::SP_ToolBarVerticalExtensionButton};

constexpr int iconRowCount = int(std::size(iconRows));

/// Tells whether one of the first \a count rows is that of \a pixmap.
bool isReplaced(QStyle::StandardPixmap pixmap, int count = iconRowCount)
{
    return std::any_of(iconRows, iconRows + count, [pixmap](const IconRow &row) {
        return row.pixmap == pixmap && !row.isLeft();
    });
}

void addRows(int count)
{
    QTest::addColumn<QStyle::StandardPixmap>("pixmap");
    QTest::addColumn<QString>("name");
    const QMetaEnum values = QMetaEnum::fromType<QStyle::StandardPixmap>();
    for (const IconRow *row = iconRows; row < iconRows + count; ++row) {
        if (!row->isLeft()) {
            QTest::newRow(values.valueToKey(row->pixmap)) << row->pixmap << row->name();
        }
    }
}

bool isExtension(QStyle::StandardPixmap pixmap)
{
    return std::find(std::begin(extensions), std::end(extensions), pixmap) != std::end(extensions);
}

/// Returns every standard pixmap, each once.
QVector<QStyle::StandardPixmap> allPixmaps()
{
    const QMetaEnum values = QMetaEnum::fromType<QStyle::StandardPixmap>();
    QVector<QStyle::StandardPixmap> pixmaps;
    for (int i = 0; i < values.keyCount(); ++i) {
        const auto pixmap = QStyle::StandardPixmap(values.value(i));
        if (pixmap != QStyle::SP_CustomBase && !pixmaps.contains(pixmap)) {
            pixmaps << pixmap;
        }
    }
    return pixmaps;
}

QImage imageOf(const QIcon &icon)
{
    return icon.pixmap(QSize(32, 32)).toImage();
}

/// Returns the rows of \a image, in which '.' stands for a pixel in \a color and '+' for one that
/// is transparent.
QStringList rowsOf(const QImage &image, const QColor &color)
{
    QStringList rows;
    for (int y = 0; y < image.height(); ++y) {
        QString row;
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            row += QLatin1Char(pixel.alpha() == 0 ? '+' : pixel == color ? '.' : '?');
        }
        rows << row;
    }
    return rows;
}

const QStringList horizontalRows{text("..++..++"), text("+..++..+"), text("++..++.."),
                                 text("+..++..+"), text("..++..++")};
const QStringList verticalRows{text(".+++."), text("..+.."), text("+...+"), text("++.++"),
                               text(".+++."), text("..+.."), text("+...+"), text("++.++")};

QPixmap square(const QColor &color, int width = 16, int height = 16)
{
    QPixmap pixmap(width, height);
    pixmap.fill(color);
    return pixmap;
}

QColor centre(const QPixmap &pixmap)
{
    const QImage image = pixmap.toImage();
    return image.pixelColor(image.rect().center());
}

} // namespace

/// The theme's icons in the place of the toolkit's.
class StandardIconsTest : public QObject
{
    Q_OBJECT

private:
    UniqueTheme m_theme;
    IconTheme m_icons;
    BaseStyle m_style;
    QProxyStyle m_base{text("fusion")};

    /// Returns the highlighted icon of a widget that asks for \a name.
    QIcon highlighted(const QString &name, const QStyleOption *option = nullptr) const
    {
        QWidget widget;
        widget.setProperty("highlightedIcon", name);
        return m_style.standardIcon(QStyle::SP_CustomBase, option, &widget);
    }

    QString tintOf(const QIcon &icon) const { return m_theme.nameOf(colorOf(icon)); }

private Q_SLOTS:
    void initTestCase()
    {
        for (const char *name :
             {"action.app.minimize", "action.app.maximize", "action.close", "action.delete",
              "status.info.circular.colored", "status.warning.circular.colored",
              "status.danger.circular.colored", "status.help.circular.colored", "arrow.up.small",
              "arrow.down.small", "arrow.left.small", "arrow.right.small", "action.app.restore",
              "action.menu", "action.help", "chevron.up", "chevron.down"}) {
            m_icons.add(text(name));
        }
        m_icons.add(text("plain"), referenceForeground);
        m_icons.add(text("amber"), QColor(0xf6, 0xb4, 0x36));
    }

    void icons_data() { addRows(iconRowCount); }

    void icons()
    {
        QFETCH(QStyle::StandardPixmap, pixmap);
        QFETCH(QString, name);
        QCOMPARE(m_icons.nameOf(m_style.standardIcon(pixmap)), name);
        const QStyleOption option;
        const QWidget widget;
        QCOMPARE(m_icons.nameOf(m_style.standardIcon(pixmap, &option, &widget)), name);
    }

    void otherIconsAreTheBaseStyles()
    {
        int others = 0;
        for (const QStyle::StandardPixmap pixmap : allPixmaps()) {
            if (!isReplaced(pixmap) && !isExtension(pixmap)) {
                QCOMPARE(imageOf(m_style.standardIcon(pixmap)),
                         imageOf(m_base.standardIcon(pixmap)));
                ++others;
            }
        }
        QVERIFY(others > 40);
    }

    void pixmaps_data() { addRows(pixmapRowCount); }

    void pixmaps()
    {
        QFETCH(QStyle::StandardPixmap, pixmap);
        QFETCH(QString, name);
        const QPixmap result = m_style.standardPixmap(pixmap, nullptr);
        QCOMPARE(result.size(), QSize(16, 16));
        QCOMPARE(m_icons.nameOf(QIcon(result)), name);
    }

    void otherPixmapsAreTheBaseStyles()
    {
        for (const QStyle::StandardPixmap pixmap : allPixmaps()) {
            if (!isReplaced(pixmap, pixmapRowCount)) {
                QCOMPARE(m_style.standardPixmap(pixmap, nullptr).toImage(),
                         m_base.standardPixmap(pixmap, nullptr).toImage());
            }
        }
        QVERIFY(m_icons.nameOf(QIcon(m_style.standardPixmap(QStyle::SP_LineEditClearButton,
                                                            nullptr))) != text("action.close"));
    }

    void highlightedIconOfNothing()
    {
        const QWidget widget;
        QVERIFY(m_style.standardIcon(QStyle::SP_CustomBase).isNull());
        QVERIFY(m_style.standardIcon(QStyle::SP_CustomBase, nullptr, &widget).isNull());
        QVERIFY(highlighted(QString()).isNull());
        QVERIFY(highlighted(text("unknown.icon")).isNull());
    }

    void highlightedIcon()
    {
        QCOMPARE(tintOf(highlighted(text("plain"))), text("MainBrush"));
        QStyleOption option;
        option.state = QStyle::State_Enabled | QStyle::State_MouseOver;
        QCOMPARE(tintOf(highlighted(text("plain"), &option)), text("MainBrush"));
        option.state = QStyle::State_MouseOver;
        QCOMPARE(tintOf(highlighted(text("plain"), &option)), text("MainBrushDisabled"));
        // Amber means something in one icon only.
        QCOMPARE(colorOf(highlighted(text("amber"))), QColor(0xf6, 0xb4, 0x36));
    }

    void highlightedIconInAColorOfItsOwn()
    {
        const QString name = text("status.checked.circular.colored");
        m_icons.add(name, QColor(0xf6, 0xb4, 0x36));
        QCOMPARE(tintOf(highlighted(name)), text("MainBrush"));
        QStyleOption option;
        option.state = QStyle::State_None;
        QCOMPARE(tintOf(highlighted(name, &option)), text("MainBrushDisabled"));
    }

    void highlightedIconKeepsItsForeground()
    {
        const QString name = text("status.checked.circular.colored");
        IconTheme icons;
        icons.add(name, referenceForeground);
        QCOMPARE(colorOf(highlighted(name)), referenceForeground);
    }

    void disabledPictureOfALabel()
    {
        QLabel label;
        QStyleOption option;
        option.initFrom(&label);
        const QPixmap pixmap = square(referenceForeground, 12, 20);
        const QPixmap result = m_style.generatedIconPixmap(QIcon::Disabled, pixmap, &option);
        QCOMPARE(result.size(), QSize(12, 20));
        QCOMPARE(m_theme.nameOf(centre(result)), text("ForegroundBrushDisabled"));

        const QPixmap red = square(Qt::red);
        QCOMPARE(centre(m_style.generatedIconPixmap(QIcon::Disabled, red, &option)),
                 QColor(Qt::red));
    }

    void disabledPictureOfALabelIsScaled_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<qreal>("ratio");
        QTest::addColumn<QSize>("expected");
        QTest::newRow("2") << QSize(32, 48) << 2.0 << QSize(16, 24);
        QTest::newRow("2, truncated") << QSize(33, 33) << 2.0 << QSize(16, 16);
        QTest::newRow("1.5, truncated") << QSize(26, 26) << 1.5 << QSize(17, 17);
    }

    void disabledPictureOfALabelIsScaled()
    {
        QFETCH(QSize, size);
        QFETCH(qreal, ratio);
        QFETCH(QSize, expected);
        QLabel label;
        QStyleOption option;
        option.initFrom(&label);
        QPixmap pixmap = square(referenceForeground, size.width(), size.height());
        pixmap.setDevicePixelRatio(ratio);
        const QPixmap result = m_style.generatedIconPixmap(QIcon::Disabled, pixmap, &option);
        QCOMPARE(result.size(), expected);
        QCOMPARE(m_theme.nameOf(centre(result)), text("ForegroundBrushDisabled"));
    }

    void disabledLabelIsPaintedDimmed()
    {
        QLabel label;
        label.setStyle(&m_style);
        label.setPixmap(square(referenceForeground));
        QVERIFY(m_theme.nameOf(centre(label.grab())) != text("ForegroundBrushDisabled"));
        label.setEnabled(false);
        QCOMPARE(m_theme.nameOf(centre(label.grab())), text("ForegroundBrushDisabled"));
    }

    void otherPicturesStayAsTheyAre()
    {
        const QLabel label;
        const QPushButton button;
        const QPixmap pixmap = square(referenceForeground);
        QStyleOption ofLabel;
        ofLabel.initFrom(&label);
        QStyleOptionButton ofButton;
        ofButton.initFrom(&button);
        const QStyleOption ofNothing;
        for (const auto mode : {QIcon::Normal, QIcon::Active, QIcon::Selected}) {
            QCOMPARE(m_style.generatedIconPixmap(mode, pixmap, &ofLabel).cacheKey(),
                     pixmap.cacheKey());
        }
        for (const auto mode : {QIcon::Normal, QIcon::Disabled, QIcon::Active, QIcon::Selected}) {
            for (const QStyleOption *option :
                 {static_cast<const QStyleOption *>(nullptr), &ofNothing,
                  static_cast<const QStyleOption *>(&ofButton)}) {
                QCOMPARE(m_style.generatedIconPixmap(mode, pixmap, option).cacheKey(),
                         pixmap.cacheKey());
            }
        }
    }

    void generatedExtensionIcon()
    {
        // Four letters: opaque, half transparent, and two ways of nothing.
        const char *const xpm[] = {"4 1 4 1",  ". c #000000", "o c #123456",
                                   "  c None", "+ c none",    ".o +"};
        QPalette palette;
        palette.setColor(QPalette::Text, QColor(10, 20, 30, 40));
        palette.setColor(QPalette::HighlightedText, QColor(50, 60, 70));
        palette.setColor(QPalette::Disabled, QPalette::Text, QColor(80, 90, 100));
        const QIcon icon = m_style.generateToolBarExpandButtonIcon(xpm, palette);
        const QSize size(4, 1);
        QCOMPARE(icon.availableSizes(QIcon::Normal, QIcon::Off), QList<QSize>{size});
        const QImage normal = icon.pixmap(size, QIcon::Normal, QIcon::Off).toImage();
        QCOMPARE(rowsOf(normal, QColor(10, 20, 30)), QStringList{text("..++")});
        const QImage active = icon.pixmap(size, QIcon::Active, QIcon::Off).toImage();
        QCOMPARE(rowsOf(active, QColor(50, 60, 70)), QStringList{text("..++")});

        palette.setCurrentColorGroup(QPalette::Disabled);
        const QIcon disabled = m_style.generateToolBarExpandButtonIcon(xpm, palette);
        QCOMPARE(rowsOf(disabled.pixmap(size).toImage(), QColor(80, 90, 100)),
                 QStringList{text("..++")});
    }

    void extensionIcons()
    {
        QPalette palette;
        palette.setColor(QPalette::Text, Qt::red);
        palette.setColor(QPalette::HighlightedText, Qt::green);
        m_style.setPalette(palette);
        const QIcon horizontal = m_style.standardIcon(extensions[0]);
        const QIcon vertical = m_style.standardIcon(extensions[1]);
        const QSize wide(8, 5);
        const QSize high(5, 8);
        QCOMPARE(rowsOf(horizontal.pixmap(wide).toImage(), Qt::red), horizontalRows);
        QCOMPARE(rowsOf(horizontal.pixmap(wide, QIcon::Active).toImage(), Qt::green),
                 horizontalRows);
        QCOMPARE(rowsOf(vertical.pixmap(high).toImage(), Qt::red), verticalRows);
        QCOMPARE(rowsOf(vertical.pixmap(high, QIcon::Active).toImage(), Qt::green), verticalRows);
    }

    void extensionIconsAreGeneratedOnce()
    {
        const qint64 horizontal = m_style.standardIcon(extensions[0]).cacheKey();
        const qint64 vertical = m_style.standardIcon(extensions[1]).cacheKey();
        QVERIFY(horizontal != vertical);
        QPalette palette;
        palette.setColor(QPalette::Text, Qt::blue);
        m_style.setPalette(palette);
        QCOMPARE(m_style.standardIcon(extensions[0]).cacheKey(), horizontal);
        BaseStyle other;
        other.setPalette(palette);
        QCOMPARE(other.standardIcon(extensions[0]).cacheKey(), horizontal);
        QCOMPARE(other.standardIcon(extensions[1]).cacheKey(), vertical);
    }
};

QTEST_MAIN(StandardIconsTest)
#include "StandardIconsTest.moc"
