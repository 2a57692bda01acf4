#pragma once

#include <QSettings>
#include <QStringList>

/**
 * The files that QSettings has for an organisation and an application, in the order in which it
 * searches them. The first one is written. Empty without an organisation.
 */
QStringList mrvSettingsPaths(QSettings::Format format, QSettings::Scope scope,
                             const QString &organization, const QString &application);
