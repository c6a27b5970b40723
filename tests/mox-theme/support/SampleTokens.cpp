#include "SampleTokens.h"

#include <QtCore/QRandomGenerator>
#include <QtTest/QtTest>

using namespace TARN::ThemeTool;

namespace {

Tokens shipped(const char *name)
{
    Tokens tokens;
    const QString path = QStringLiteral(MOX_TOKENS "/%1.toml").arg(QString::fromLatin1(name));
    const TokenProblem problem = readTokens(path, tokens);
    if (!problem.text.isEmpty()) {
        qFatal("%s: %s", qPrintable(path), qPrintable(problem.text));
    }
    return tokens;
}

Tokens tokensOf(Base base, const QColor &accent)
{
    Tokens tokens;
    tokens.name = QStringLiteral("Sample");
    tokens.base = base;
    tokens.accent = accent;
    return tokens;
}

} // namespace

void addShippedRows()
{
    QTest::addColumn<Tokens>("tokens");
    for (const char *name : {"Dark", "Light", "HighContrast"}) {
        QTest::newRow(name) << shipped(name);
    }
}

void addManyRows()
{
    addShippedRows();
    QVector<QColor> accents{Qt::white, Qt::black, Qt::gray, Qt::red, Qt::yellow, Qt::blue};
    QRandomGenerator random(1);
    for (int i = 0; i < 20; ++i) {
        accents += QColor::fromRgb(random.generate());
    }
    const std::pair<const char *, Base> bases[] = {
        {"dark", Base::Dark}, {"light", Base::Light}, {"high contrast", Base::HighContrast}};
    for (const QColor &accent : accents) {
        for (const auto &[name, base] : bases) {
            QTest::addRow("%s, %s", name, qPrintable(accent.name())) << tokensOf(base, accent);
        }
    }
}
