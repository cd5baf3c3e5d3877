#pragma once

#include <QObject>
#include <QQmlParserStatus>
#include <QTimer>
#include <QtQmlIntegration>

namespace nutrika {

/// State of the whole-number stepper: keeps `value` a clean decimal integer within [min, max], steps it by
/// one per tap, and repeats the step while a button is held. Its look is NumberStepperControl.qml.
class NumberStepper : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    QML_ELEMENT
    Q_INTERFACES(QQmlParserStatus)
    /// The number as decimal text; every write is normalised and reported through update().
    Q_PROPERTY(QString value READ value WRITE setValue NOTIFY valueChanged)
    /// Fixed once the stepper is built. QML sees numbers; whole values are exact up to 2^53.
    Q_PROPERTY(double min READ minNumber WRITE setMinNumber NOTIFY boundsChanged)
    Q_PROPERTY(double max READ maxNumber WRITE setMaxNumber NOTIFY boundsChanged)
    Q_PROPERTY(bool isLongPressing READ isLongPressing NOTIFY isLongPressingChanged)
    Q_PROPERTY(double longPressInterval READ longPressInterval CONSTANT)

public:
    enum Direction
    {
        Down = -1,
        Up = 1
    };
    Q_ENUM(Direction)

    static constexpr int longPressDelayMs = 200;
    static constexpr int repeatIntervalMs = 50;

    /// For QML: bounds and value are set as properties, and the text is normalised once the stepper is built.
    explicit NumberStepper(QObject *parent = nullptr);
    /// For C++ owners: call normalize() when the stepper is first shown.
    NumberStepper(qint64 min, qint64 max, QObject *parent = nullptr);

    /// The integer `text` stands for: its digits only, clamped to [min, max]; min when it has no digits.
    [[nodiscard]] static qint64 normalizedValue(QStringView text, qint64 min, qint64 max);

    [[nodiscard]] QString value() const { return m_value; }
    void setValue(const QString &value);
    [[nodiscard]] qint64 min() const { return m_min; }
    void setMin(qint64 min);
    [[nodiscard]] qint64 max() const { return m_max; }
    void setMax(qint64 max);
    [[nodiscard]] double minNumber() const { return double(m_min); }
    void setMinNumber(double min) { setMin(qint64(min)); }
    [[nodiscard]] double maxNumber() const { return double(m_max); }
    void setMaxNumber(double max) { setMax(qint64(max)); }
    [[nodiscard]] bool isLongPressing() const { return m_isLongPressing; }
    [[nodiscard]] double longPressInterval() const { return repeatIntervalMs / 1000.0; }
    [[nodiscard]] bool isRepeating() const { return m_timer.isActive(); }

    /// Rewrites `value` in normal form and reports it, also when it was already normal.
    Q_INVOKABLE void normalize();
    Q_INVOKABLE void increase();
    Q_INVOKABLE void decrease();

    /// A completed tap on a button: stops a running repeat without stepping, else steps once.
    Q_INVOKABLE void tap(int direction);
    /// A finger went down on a button: held for 0.2 s it starts the repeat.
    Q_INVOKABLE void press(int direction);
    /// The finger lifted without moving away: the tap.
    Q_INVOKABLE void release(int direction);
    /// The finger moved away before lifting: no tap, and a running repeat goes on.
    Q_INVOKABLE void cancelPress();

    void classBegin() override {}
    void componentComplete() override;

signals:
    void valueChanged();
    void boundsChanged();
    void isLongPressingChanged();
    /// Every normalised value (the owner's onUpdate).
    void updated(qint64 value);

private:
    void step(int direction);
    void startRepeat();

    QString m_value;
    qint64 m_min = 0;
    qint64 m_max = 0;
    bool m_complete = false;
    bool m_isLongPressing = false;
    int m_pressDirection = Up;
    QTimer m_recognizer;
    QTimer m_timer;
};

} // namespace nutrika
