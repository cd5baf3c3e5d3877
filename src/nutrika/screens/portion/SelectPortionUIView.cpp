#include "SelectPortionUIView.h"

#include "EnvironmentVariables.h"
#include "ExampleData.h"
#include "PortionsRequest.h"

#include <QPointer>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

namespace {

/// The digits of `text`, in order.
QString digitsOf(const QString &text)
{
    QString digits;
    for (const QChar c : text) {
        if (c >= u'0' && c <= u'9')
            digits.append(c);
    }
    return digits;
}

} // namespace

SelectPortionUIView::SelectPortionUIView(QObject *parent) : QObject(parent), m_customPortionSize(-1) {}

QStringList SelectPortionUIView::options() const
{
    return {tr("Images"), tr("Descriptions")};
}

void SelectPortionUIView::appear()
{
    if (m_preview == Preview::NotPreview)
        loadData();
    else
        showPreviewPortions();
}

void SelectPortionUIView::loadData()
{
    m_imagePortions.clear();
    m_descPortions.clear();
    m_portionOptions.clear();
    emit portionsChanged();
    m_isLoading = true;
    emit isLoadingChanged();
    requestPortions(*EnvironmentVariables::shared()->serviceClient(), m_selectedFood.id, this,
                    [self = QPointer(this)](const std::optional<QList<PortionItem>> &portions) {
                        if (!self)
                            return;
                        self->m_isLoading = false;
                        emit self->isLoadingChanged();
                        if (portions)
                            self->setPortions(*portions);
                    });
}

void SelectPortionUIView::setPortions(const QList<PortionItem> &portions)
{
    m_imagePortions.clear();
    m_descPortions.clear();
    for (const PortionItem &portion : portions)
        (portion.image_name.isEmpty() ? m_descPortions : m_imagePortions).append(portion);
    if (m_imagePortions.isEmpty())
        m_tabOption = 1;
    m_portionOptions = m_tabOption == 0 ? m_imagePortions : m_descPortions;
    emit portionsChanged();
}

void SelectPortionUIView::showPreviewPortions()
{
    m_tabOption = m_preview == Preview::Descriptions ? 1 : 0;
    setPortions(example::examplePortions());
}

void SelectPortionUIView::setTabOption(int tab)
{
    m_tabOption = tab;
    m_portionOptions = tab != 0 ? m_descPortions : m_imagePortions;
    emit portionsChanged();
}

QVariantList SelectPortionUIView::portionOptionsVariant() const
{
    QVariantList list;
    list.reserve(m_portionOptions.size());
    for (const PortionItem &portion : m_portionOptions)
        list.append(QVariant::fromValue(portion));
    return list;
}

void SelectPortionUIView::selectBox(int index)
{
    if (index < 0 || index >= m_portionOptions.size())
        return;
    m_selectedPortion = m_portionOptions.at(index);
    // The custom box then reads its field again, so -1 stays only while the field is empty.
    m_customPortionSize = -1;
    setCustomText(m_customText);
    emit selectionChanged();
}

void SelectPortionUIView::selectCustom()
{
    PortionItem custom = basePortionItem();
    custom.size = m_customPortionSize.value_or(-1);
    m_selectedPortion = custom;
    emit selectionChanged();
}

void SelectPortionUIView::setCustomText(const QString &text)
{
    const QString digits = digitsOf(text);
    bool number = true;
    const qint64 size = digits.toLongLong(&number);
    m_customPortionSize = digits.isEmpty() ? std::optional<qint64>(-1)
                          : number         ? std::optional<qint64>(size)
                                           : std::nullopt;
    if (customSelected() && m_customPortionSize)
        m_selectedPortion->size = *m_customPortionSize;
    // Always announced: a field that showed "12a3" must be told to show "123".
    m_customText = digits;
    emit customTextChanged();
    emit selectionChanged();
}

bool SelectPortionUIView::canSelectPortion() const
{
    if (!m_selectedPortion)
        return false;
    // The custom box needs an amount: an empty field, or digits too many for a number, hand on nothing.
    return !customSelected() || (m_customPortionSize && *m_customPortionSize != -1);
}

void SelectPortionUIView::selectPortion()
{
    if (!canSelectPortion())
        return;
    PortionItem portion = *m_selectedPortion;
    if (customSelected())
        portion.size = *m_customPortionSize;
    m_chosenPortion = portion;
    emit chosenPortionChanged();
    if (m_hasCompleteCallback)
        emit completed(portion);
    else
        setNavigationActive(true);
}

void SelectPortionUIView::setSelectedFood(const FoodItem &food)
{
    m_selectedFood = food;
    emit selectedFoodChanged();
}

void SelectPortionUIView::setPreview(Preview::Value preview)
{
    m_preview = preview;
    emit previewChanged();
}

void SelectPortionUIView::setNavigationActive(bool active)
{
    m_navigationActive = active;
    emit navigationActiveChanged();
}

void SelectPortionUIView::setHasCompleteCallback(bool has)
{
    m_hasCompleteCallback = has;
    emit hasCompleteCallbackChanged();
}

} // namespace nutrika
