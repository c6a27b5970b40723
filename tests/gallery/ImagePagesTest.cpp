#include <resources/ThemeResources.h>
#include <theme/Theme.h>
#include <theme/ThemeFactory.h>

#include <QtGui/QClipboard>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QToolButton>

#include <memory>
#include <pages/Pages.h>
#include <support/Text.h>

using namespace TARN::Gallery;

namespace {

/// The icon browser and what is in it.
class IconsPage
{
public:
    IconsPage()
        : m_page(createIconsPage())
    {
        m_page->resize(900, 600);
        m_page->show();
        // It appears in an animation that the toolkit leaks when the button goes before its end.
        search()->setClearButtonEnabled(false);
    }

    [[nodiscard]] QLineEdit *search() const { return m_page->findChild<QLineEdit *>(); }
    [[nodiscard]] QListView *view() const { return m_page->findChild<QListView *>(); }
    [[nodiscard]] int count() const { return view()->model()->rowCount(); }
    [[nodiscard]] QModelIndex icon(int row) const { return view()->model()->index(row, 0); }

    /// Returns the choices at the trailing side: of the size, and of the tint.
    [[nodiscard]] QComboBox *choice(int index) const
    {
        return m_page->findChildren<QComboBox *>().at(index);
    }

    [[nodiscard]] QStringList names() const
    {
        QStringList names;
        for (int row = 0; row < count(); ++row) {
            names.append(icon(row).data(Qt::ToolTipRole).toString());
        }
        return names;
    }

    [[nodiscard]] bool says(const QString &part) const
    {
        const QList<QLabel *> labels = m_page->findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(),
                           [&part](const QLabel *label) { return label->text().contains(part); });
    }

    void choose(int index, int row) const
    {
        choice(index)->setCurrentIndex(row);
        Q_EMIT choice(index)->activated(row);
    }

private:
    std::unique_ptr<QWidget> m_page;
};

QImage imageOf(const QModelIndex &index)
{
    return index.data(Qt::DecorationRole).value<QIcon>().pixmap(32).toImage();
}

} // namespace

/// The pages that show the icons and the cursors.
class ImagePagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void allIconsAreListed();
    void everyWordIsSearched();
    void aClickCopiesTheName();
    void returnCopiesTheName();
    void sizesCanBeChosen();
    void tintsCanBeChosen();
    void allCursorsAreShown();
    void chosenCursorIsTried();
};

void ImagePagesTest::initTestCase()
{
    auto *factory = TARN::ThemeFactory::getInstance();
    factory->setThemesRepositoryPath(QStringLiteral(MOX_THEMES));
    factory->getTheme(text("Dark"))->customize(qApp);
}

void ImagePagesTest::allIconsAreListed()
{
    const IconsPage page;
    QCOMPARE(page.count(), 710);
    QVERIFY(page.says(text("710 of 710")));
    // What the theme holds for the toolkit's dialogs has names of another kind.
    QVERIFY(!page.names().contains(text("folder")));
    QVERIFY(page.names().contains(text("action.copy")));
}

void ImagePagesTest::everyWordIsSearched()
{
    const IconsPage page;
    page.search()->setText(text("ADD layer"));
    QCOMPARE(page.names(), QStringList(text("view.layer.add")));
    QVERIFY(page.says(text("1 of 710")));
    page.search()->setText(text("no such icon ("));
    QCOMPARE(page.count(), 0);
    page.search()->clear();
    QCOMPARE(page.count(), 710);
}

void ImagePagesTest::aClickCopiesTheName()
{
    const IconsPage page;
    page.search()->setText(text("view.calendar"));
    QTest::mouseClick(page.view()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      page.view()->visualRect(page.icon(0)).center());
    QCOMPARE(QGuiApplication::clipboard()->text(), text("view.calendar"));
    QVERIFY(page.says(text("view.calendar")));
}

void ImagePagesTest::returnCopiesTheName()
{
    const IconsPage page;
    page.search()->setText(text("tool.pen"));
    page.view()->setCurrentIndex(page.icon(0));
    QTest::keyClick(page.view(), Qt::Key_Return);
    QCOMPARE(QGuiApplication::clipboard()->text(), text("tool.pen"));
}

void ImagePagesTest::sizesCanBeChosen()
{
    const IconsPage page;
    for (int row = 0; row < page.choice(0)->count(); ++row) {
        page.choose(0, row);
        const int size = page.choice(0)->itemData(row).toInt();
        QCOMPARE(page.view()->iconSize(), QSize(size, size));
        QVERIFY(page.view()->gridSize().height() > size);
    }
}

void ImagePagesTest::tintsCanBeChosen()
{
    const IconsPage page;
    page.search()->setText(text("action.copy"));
    QSet<QByteArray> pictures;
    for (int row = 0; row < page.choice(1)->count(); ++row) {
        page.choose(1, row);
        const QImage image = imageOf(page.icon(0)).convertToFormat(QImage::Format_ARGB32);
        QVERIFY(!image.isNull());
        pictures.insert(QByteArray(reinterpret_cast<const char *>(image.constBits()),
                                   int(image.sizeInBytes())));
    }
    QCOMPARE(pictures.size(), page.choice(1)->count());
}

void ImagePagesTest::allCursorsAreShown()
{
    const std::unique_ptr<QWidget> page(createCursorsPage());
    const QList<QToolButton *> buttons = page->findChildren<QToolButton *>();
    QCOMPARE(buttons.size(), 28);
    for (const QToolButton *button : buttons) {
        const QCursor cursor = TARN::ThemeResources::getCursor(button->text());
        QCOMPARE(button->cursor().hotSpot(), cursor.hotSpot());
        QCOMPARE(button->cursor().pixmap().toImage(), cursor.pixmap().toImage());
        QVERIFY(!button->icon().isNull());
    }
}

void ImagePagesTest::chosenCursorIsTried()
{
    const std::unique_ptr<QWidget> page(createCursorsPage());
    auto *trial = page->findChild<QLabel *>();
    for (QToolButton *button : page->findChildren<QToolButton *>()) {
        button->click();
        QCOMPARE(trial->text(), button->text());
        QCOMPARE(trial->cursor().pixmap().toImage(), button->cursor().pixmap().toImage());
    }
}

QTEST_MAIN(ImagePagesTest)
#include "ImagePagesTest.moc"
