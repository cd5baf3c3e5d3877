#pragma once

#include "nutrika/MealResult.h"

#include <memory>
#include <QCoreApplication>
#include <QList>
#include <QSize>
#include <QSslCertificate>
#include <QString>
#include <QUrl>
#include <variant>

/// What the demo was asked to do.
struct DemoOptions
{
    /// A screen to show over sample data; empty for the host application.
    QString preview;
    /// Where to save a picture of the view before exiting; empty to stay open.
    QString screenshot;
    /// The service to use; empty to start the bundled one.
    QUrl serviceOrigin;
    /// The key to send; empty gives the bundled service a random one.
    QString apiKey;
    /// Authorities to trust besides the system's.
    QList<QSslCertificate> caCertificates;
    /// The window of a preview or a picture: a phone's unless asked otherwise.
    QSize windowSize{430, 860};
    /// What the host turns on in the module.
    nutrika::HostOptions hostOptions;
};

/// The application the arguments need, made before they are parsed, so that help needs no display and a
/// preview no widgets.
[[nodiscard]] std::unique_ptr<QCoreApplication> createApplication(int &argc, char **argv);

/// The options, or the status to exit with at once: 0 after printing the help, 2 after an error.
[[nodiscard]] std::variant<DemoOptions, int> parseDemoOptions(const QStringList &arguments);
