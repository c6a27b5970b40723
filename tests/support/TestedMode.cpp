#include "support/TestedMode.h"

#include <theme/BaseTheme.h>

#include <QtCore/QEvent>
#include <QtWidgets/QApplication>

#include <support/Text.h>
#include <support/ThemeRepository.h>

namespace {

constexpr const char *variablesProperty = "theme_var";

/// Puts other variables in the place of those that a theme publishes while it is applied.
class VariableExchange : public QObject
{
public:
    explicit VariableExchange(const QVariantMap &variables)
        : m_variables(variables)
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == qApp && event->type() == QEvent::DynamicPropertyChange &&
            static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName() ==
                variablesProperty &&
            !m_isDone) {
            m_isDone = true;
            qApp->setProperty(variablesProperty, m_variables);
        }
        return false;
    }

private:
    QVariantMap m_variables;
    bool m_isDone = false;
};

} // namespace

bool testsCompleteMode()
{
    return qgetenv("MOX_TESTED_MODE") == "complete";
}

void enterTestedMode(const QVariantMap &variables)
{
    if (!testsCompleteMode()) {
        return;
    }
    const ThemeRepository repository;
    const QString theme = repository.addTheme(text("Tested"));
    const VariableExchange exchange(variables);
    qApp->setProperty("appCompleteTheming", true);
    TARN::BaseTheme(theme).customize(qApp);
}
