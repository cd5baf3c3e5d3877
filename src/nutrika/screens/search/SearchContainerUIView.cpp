#include "SearchContainerUIView.h"

#include "EnvironmentVariables.h"

namespace nutrika {

void SearchContainerUIView::setTabOption(int tab)
{
    if (tab == m_tabOption)
        return;
    m_tabOption = tab;
    emit tabOptionChanged();
}

void SearchContainerUIView::contentAppeared()
{
    EnvironmentVariables::shared()->setEditRecipeActive(false);
    emit appeared();
}

} // namespace nutrika
