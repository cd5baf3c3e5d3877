#pragma once

#include <QCoreApplication>
#include <QObject>
#include <QQmlEngine>
#include <QtQmlIntegration>
#include <QTranslator>

/// Marks every text that goes through translation as ⟦text⟧, so that a test finds the texts on screen
/// that never did. Installed before the screens are built, it reaches C++ texts read once as well.
class TranslationProbe : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    Q_INVOKABLE void markEverything(QObject *item)
    {
        QCoreApplication::installTranslator(&m_marker);
        if (QQmlEngine *engine = qmlEngine(item))
            engine->retranslate();
    }

    Q_INVOKABLE void stopMarking(QObject *item)
    {
        QCoreApplication::removeTranslator(&m_marker);
        if (QQmlEngine *engine = qmlEngine(item))
            engine->retranslate();
    }

private:
    class Marker : public QTranslator
    {
    public:
        [[nodiscard]] QString translate(const char *, const char *sourceText, const char *,
                                        int) const override
        {
            return QStringLiteral("⟦") + QString::fromUtf8(sourceText) + QStringLiteral("⟧");
        }
        [[nodiscard]] bool isEmpty() const override { return false; }
    };
    Marker m_marker;
};
