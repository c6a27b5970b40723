#include <theme/ThemeQApplication.h>

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

#include <support/Text.h>

using TARN::ThemeQApplication;

namespace {

/// Comes up themed, shows texts of all kinds, and ends. Returns what was seen.
QImage seenInAnApplication()
{
    int argc = 1;
    QByteArray program("program");
    char *argv[] = {program.data(), nullptr};
    const ThemeQApplication app(argc, argv, text("Dark"), text(MOX_SHIPPED_THEMES));
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    layout->addWidget(new QPushButton(text("&Button")));
    auto *combo = new QComboBox;
    combo->addItem(text("An entry that is far too long for the box"));
    combo->setMaximumWidth(100);
    layout->addWidget(combo);
    auto *list = new QListWidget;
    list->addItems({text("First"), text("Second")});
    layout->addWidget(list);
    window.resize(200, 200);
    return window.grab().toImage();
}

} // namespace

/// Programs that make one application after the other.
class SuccessiveApplicationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachLooksAsTheFirst()
    {
        const QImage first = seenInAnApplication();
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(seenInAnApplication(), first);
        }
    }
};

QTEST_APPLESS_MAIN(SuccessiveApplicationsTest)
#include "SuccessiveApplicationsTest.moc"
