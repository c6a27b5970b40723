#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <check/Check.h>
#include <support/ThemeRepository.h>

/// A theme in a temporary folder in which nothing is wrong, until a test spoils it. Its files have
/// one element a line.
class SoundTheme
{
public:
    SoundTheme();

    QString directory() const { return m_repository.path(name()); }
    static QString name() { return QStringLiteral("Sound"); }

    /// Returns the path of \a file as findings give it.
    QString path(const QString &file) const;

    QByteArray content(const QString &file) const;
    void write(const QString &file, const QByteArray &content) const;
    void remove(const QString &file) const;

    /// Writes \a after in place of \a before, which \a file must hold.
    void replace(const QString &file, const QByteArray &before, const QByteArray &after) const;

    QVector<TARN::ThemeTool::Finding>
    check(const TARN::ThemeTool::CheckSettings &settings = {}) const;

    /// Returns what check() finds of \a rule.
    QVector<TARN::ThemeTool::Finding> findings(const QString &rule) const;

private:
    ThemeRepository m_repository;
};

/// Returns \a findings line by line, for messages and comparisons: "config.xml:3:7 rule".
QStringList places(const QVector<TARN::ThemeTool::Finding> &findings);

/// Returns where \a marker begins in \a content, in the form of places().
QString placeOf(const QString &file, const QByteArray &content, const QByteArray &marker);
