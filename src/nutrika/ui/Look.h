#pragma once

#include <QColor>
#include <QFont>
#include <QObject>
#include <QtQmlIntegration>

class QQmlEngine;
class QJSEngine;

namespace nutrika {

/// The module's look for QML: the named colours, the two custom fonts, the text sizes and the symbol icons.
class Look : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QColor titleText READ titleText CONSTANT)
    Q_PROPERTY(QColor headingText READ headingText CONSTANT)
    Q_PROPERTY(QColor detailColor READ detailColor CONSTANT)
    Q_PROPERTY(QColor lightGray READ lightGray CONSTANT)
    /// The search field's font, "AzoSans" 15.
    Q_PROPERTY(QFont azoSans READ azoSans CONSTANT)
    /// The stepper's number font, "arial" 15.
    Q_PROPERTY(QFont arial READ arial CONSTANT)
    Q_PROPERTY(QString symbolFont READ symbolFont CONSTANT)
    Q_PROPERTY(int titleSize MEMBER m_titleSize CONSTANT)
    Q_PROPERTY(int headlineSize MEMBER m_headlineSize CONSTANT)
    Q_PROPERTY(int bodySize MEMBER m_bodySize CONSTANT)
    Q_PROPERTY(int calloutSize MEMBER m_calloutSize CONSTANT)
    Q_PROPERTY(int captionSize MEMBER m_captionSize CONSTANT)
    /// The carbohydrates a dose is taken from: larger than any other text on their screens.
    Q_PROPERTY(int figureSize MEMBER m_figureSize CONSTANT)
    /// The widest a screen's rows grow, so that a number stays in sight of its label on a wide window.
    Q_PROPERTY(int readingWidth MEMBER m_readingWidth CONSTANT)
    /// Opacity of result rows while a new search replaces them; black on white stays readable.
    Q_PROPERTY(qreal staleOpacity READ staleOpacity CONSTANT)

public:
    static constexpr qreal staleRowOpacity = 0.6;

    explicit Look(QObject *parent = nullptr);
    static Look *create(QQmlEngine *, QJSEngine *);

    [[nodiscard]] QColor titleText() const;
    [[nodiscard]] QColor headingText() const;
    [[nodiscard]] QColor detailColor() const;
    [[nodiscard]] QColor lightGray() const;
    [[nodiscard]] QFont azoSans() const;
    [[nodiscard]] QFont arial() const;
    [[nodiscard]] QString symbolFont() const;
    [[nodiscard]] qreal staleOpacity() const { return staleRowOpacity; }

    /// The glyph of a system symbol name in `symbolFont`.
    [[nodiscard]] Q_INVOKABLE QString symbol(const QString &name) const;

private:
    int m_titleSize = 28;
    int m_headlineSize = 17;
    int m_bodySize = 17;
    int m_calloutSize = 16;
    int m_captionSize = 12;
    int m_figureSize = 34;
    int m_readingWidth = 640;
};

} // namespace nutrika
