#include "nutrika/Nutrika.h"

#include "Diagnostics.h"

#include <QShowEvent>

namespace nutrika {

MainViewController::MainViewController(QWidget *parent, Qt::WindowFlags flags) : QWidget(parent, flags) {}

void MainViewController::viewDidLoad()
{
    printDiagnostic(u"View did load");
}

void MainViewController::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (!std::exchange(m_loaded, true))
        viewDidLoad();
}

void MainViewController::onClose(const QVariant &)
{
    close();
    m_onDismissCallback();
}

} // namespace nutrika
