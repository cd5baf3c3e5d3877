#include "HostWindow.h"

#include "nutrika/Nutrika.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

HostWindow::HostWindow(QString apiKey, QString serviceNote)
    : m_apiKey(std::move(apiKey)),
      m_status(new QLabel(u"Count the carbohydrates of a meal before you dose."_s, this))
{
    setWindowTitle(u"Nutrika demo host"_s);
    auto *layout = new QVBoxLayout(this);
    auto *title = new QLabel(u"<h2>Demo health app</h2>"_s, this);
    auto *open = new QPushButton(u"Open carb calculator"_s, this);
    open->setAccessibleName(u"Open carb calculator"_s);
    open->setDefault(true);
    open->setAutoDefault(true);
    m_status->setWordWrap(true);
    auto *service = new QLabel(serviceNote, this);
    service->setWordWrap(true);
    layout->addWidget(title);
    layout->addWidget(m_status);
    layout->addWidget(open);
    layout->addWidget(service);
    layout->addStretch();
    connect(open, &QPushButton::clicked, this, &HostWindow::openModule);
    resize(420, 300);
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
