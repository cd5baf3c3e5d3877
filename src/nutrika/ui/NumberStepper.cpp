#include "NumberStepper.h"

#include <algorithm>
#include <QDebug>

namespace nutrika {

NumberStepper::NumberStepper(QObject *parent) : QObject(parent)
{
    m_recognizer.setTimerType(Qt::PreciseTimer);
    m_timer.setTimerType(Qt::PreciseTimer);
    m_recognizer.setSingleShot(true);
    m_recognizer.setInterval(longPressDelayMs);
    connect(&m_recognizer, &QTimer::timeout, this, &NumberStepper::startRepeat);
    m_timer.setInterval(repeatIntervalMs);
    connect(&m_timer, &QTimer::timeout, this, [this] { step(m_pressDirection); });
}

NumberStepper::NumberStepper(qint64 min, qint64 max, QObject *parent) : NumberStepper(parent)
{
    m_min = min;
    m_max = max;
    m_complete = true;
}

qint64 NumberStepper::normalizedValue(QStringView text, qint64 min, qint64 max)
{
    QString digits;
    for (const QChar c : text) {
        if (c >= u'0' && c <= u'9')
            digits.append(c);
    }
    if (digits.isEmpty())
        return min;
    while (digits.size() > 1 && digits.front() == u'0')
        digits.remove(0, 1);
    bool ok = false;
    const qint64 n = digits.toLongLong(&ok);
    if (!ok) // more digits than a 64-bit integer holds: larger than any bound
        return max;
    return std::clamp(n, min, std::max(min, max));
}

void NumberStepper::setValue(const QString &value)
{
    m_value = value;
    if (m_complete)
        normalize();
    else
        emit valueChanged();
}

void NumberStepper::setMin(qint64 min)
{
    if (m_complete) {
        qWarning("NumberStepper: min is fixed once the stepper is built");
        return;
    }
    m_min = min;
    emit boundsChanged();
}

void NumberStepper::setMax(qint64 max)
{
    if (m_complete) {
        qWarning("NumberStepper: max is fixed once the stepper is built");
        return;
    }
    m_max = max;
    emit boundsChanged();
}

void NumberStepper::normalize()
{
    const qint64 result = normalizedValue(m_value, m_min, m_max);
    m_value = QString::number(result);
    emit valueChanged();
    emit updated(result);
}

void NumberStepper::increase()
{
    const qint64 n = normalizedValue(m_value, m_min, m_max);
    if (n < m_max)
        setValue(QString::number(n + 1));
}

void NumberStepper::decrease()
{
    const qint64 n = normalizedValue(m_value, m_min, m_max);
    if (n > m_min)
        setValue(QString::number(n - 1));
}

void NumberStepper::step(int direction)
{
    if (direction < 0)
        decrease();
    else
        increase();
}

void NumberStepper::tap(int direction)
{
    if (m_isLongPressing) {
        m_isLongPressing = false;
        m_timer.stop();
        emit isLongPressingChanged();
        return;
    }
    step(direction);
}

void NumberStepper::press(int direction)
{
    // A press while repeating only starts the tap that stops the repeat: turning the repeat the other
    // way until the finger lifts would step away from where the person stopped it.
    if (m_isLongPressing)
        return;
    m_pressDirection = direction < 0 ? Down : Up;
    m_recognizer.start();
}

void NumberStepper::release(int direction)
{
    m_recognizer.stop();
    tap(direction);
}

void NumberStepper::cancelPress()
{
    m_recognizer.stop();
}

void NumberStepper::startRepeat()
{
    m_isLongPressing = true;
    emit isLongPressingChanged();
    m_timer.start();
}

void NumberStepper::componentComplete()
{
    m_complete = true;
    normalize();
}

} // namespace nutrika
