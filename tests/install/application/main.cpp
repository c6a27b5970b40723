#include <theme/ThemeQApplication.h>

#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>

int main(int argc, char **argv)
{
    TARN::ThemeQApplication app(argc, argv);
    QPushButton button(QStringLiteral("Hello"));
    button.show();
    return app.style()->inherits("QStyleSheetStyle") && app.property("theme_var").isValid() ? 0 : 1;
}
