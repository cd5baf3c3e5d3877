#include "HostWindow.h"

#include "nutrika/Nutrika.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

HostWindow::HostWindow(QString apiKey, QString serviceNote)
    : m_apiKey(std::move(apiKey)),
      m_status(new QLabel(u"Count the carbohydrates of a meal before you dose."_s, this)),
      m_result(new QLabel(this))
{
    setWindowTitle(u"Nutrika demo host"_s);
    auto *layout = new QVBoxLayout(this);
    auto *title = new QLabel(u"<h2>Demo health app</h2>"_s, this);
    auto *open = new QPushButton(u"Open carb calculator"_s, this);
    open->setAccessibleName(u"Open carb calculator"_s);
    open->setDefault(true);
    open->setAutoDefault(true);
    m_status->setWordWrap(true);
    m_result->setWordWrap(true);
    m_result->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_result->setAccessibleName(u"Meal received from the calculator"_s);
    auto *clear = new QPushButton(u"Dosed: clear the calculator"_s, this);
    clear->setAccessibleName(u"Dosed: clear the calculator"_s);
    auto *service = new QLabel(serviceNote, this);
    service->setWordWrap(true);
    layout->addWidget(title);
    layout->addWidget(m_status);
    layout->addWidget(open);
    layout->addWidget(m_result);
    layout->addWidget(clear);
    layout->addWidget(service);
    layout->addStretch();
    connect(open, &QPushButton::clicked, this, &HostWindow::openModule);
    connect(clear, &QPushButton::clicked, this, [this] {
        nutrika::clearCalculator();
        showResult(u"The calculator is empty."_s, nutrika::mealResult());
    });
    // What the calculator hands back when it closes: a bolus calculator would take the total from here.
    connect(nutrika::mealResults(), &nutrika::MealResults::closed, this,
            [this](const nutrika::MealResult &result) {
                showResult(u"Received from the calculator:"_s, result);
            });
    resize(420, 360);
}

void HostWindow::showResult(const QString &heading, const nutrika::MealResult &result)
{
    QString text = heading;
    for (const nutrika::MealLine &line : result.lines)
        text += u"\n• %1 (%2): %3 g"_s.arg(line.name, line.portion).arg(line.carbohydrates);
    text += u"\nTotal carbohydrates: %1 g"_s.arg(result.totalCarbohydrates);
    m_result->setText(text);
}

void HostWindow::openModule()
{
    // The module calls back first and closes its container second, so this window is shown again
    // before the container goes and the application never runs without a window.
    QWidget *module = nutrika::initNutrika(m_apiKey, [this] {
        m_status->setText(u"The carb calculator was closed; you are back in the host app."_s);
        show();
        raise();
        activateWindow();
    });
    module->setAttribute(Qt::WA_DeleteOnClose);
    hide();
    module->show();
}
