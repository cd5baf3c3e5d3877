<?xml version='1.0' encoding='utf-8'?>
<TS version="2.1" language="de_DE">
<context>
    <name>AddToCalcPreviewScreen</name>
    <message>
        <source>Add Item</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Carbohydrates %1</source>
        <translation>Kohlenhydrate %1</translation>
    </message>
    <message>
        <source>loading</source>
        <translation>wird geladen</translation>
    </message>
    <message>
        <source>Carbohydrates</source>
        <translation>Kohlenhydrate</translation>
    </message>
    <message>
        <source>The carbohydrates of this portion could not be loaded. Check the connection, then go back and open it again.</source>
        <translation>Die Kohlenhydrate dieser Portion konnten nicht geladen werden. Prüfen Sie die Verbindung, gehen Sie zurück und öffnen Sie sie erneut.</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Search more foods</source>
        <translation>Lebensmittel suchen</translation>
    </message>
</context>
<context>
    <name>CalculatorColumnHeader</name>
    <message>
        <source>Food/Drink</source>
        <translation>Essen/Trinken</translation>
    </message>
</context>
<context>
    <name>CalculatorLine</name>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
</context>
<context>
    <name>CalculatorTotalRow</name>
    <message>
        <source>Total %1</source>
        <translation>Gesamt %1</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
</context>
<context>
    <name>CarbCounterScreen</name>
    <message>
        <source>Carb Calculator</source>
        <translation>KH-Rechner</translation>
    </message>
    <message>
        <source>Calculator</source>
        <translation>Rechner</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Search more foods</source>
        <translation>Lebensmittel suchen</translation>
    </message>
</context>
<context>
    <name>CreateRecipeScreen</name>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Quantity %1</source>
        <translation>Menge %1</translation>
    </message>
    <message>
        <source>Total Carbohydrates %1</source>
        <translation>Kohlenhydrate gesamt %1</translation>
    </message>
    <message>
        <source>Total Carbohydrates</source>
        <translation>Kohlenhydrate gesamt</translation>
    </message>
    <message>
        <source>Ingredients</source>
        <translation>Zutaten</translation>
    </message>
    <message>
        <source>Weight (g)</source>
        <translation>Gewicht (g)</translation>
    </message>
    <message>
        <source>No ingredients yet. Use “Add Ingredients” to add the foods of this meal.</source>
        <translation>Noch keine Zutaten. Fügen Sie mit „Zutaten hinzufügen“ die Lebensmittel dieser Mahlzeit hinzu.</translation>
    </message>
    <message>
        <source>This meal has no ingredients.</source>
        <translation>Diese Mahlzeit hat keine Zutaten.</translation>
    </message>
    <message>
        <source>Total %1</source>
        <translation>Gesamt %1</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Add Ingredients</source>
        <translation>Zutaten hinzufügen</translation>
    </message>
    <message>
        <source>Save Meal</source>
        <translation>Mahlzeit speichern</translation>
    </message>
    <message>
        <source>Add to Calculator</source>
        <translation>Zum Rechner hinzufügen</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
</context>
<context>
    <name>CustomAmountBox</name>
    <message>
        <source>Custom amount in grams</source>
        <translation>Eigene Menge in Gramm</translation>
    </message>
    <message>
        <source>Enter Amount (g)</source>
        <translation>Menge eingeben (g)</translation>
    </message>
</context>
<context>
    <name>FilterList</name>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Type a search first</source>
        <translation>Geben Sie zuerst eine Suche ein</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>FoodAccompanimentsScreen</name>
    <message>
        <source>Would you like to add anything else?</source>
        <translation>Möchten Sie noch etwas hinzufügen?</translation>
    </message>
    <message>
        <source>The food item you added is commonly consumed with:</source>
        <translation>Das hinzugefügte Lebensmittel wird oft gegessen mit:</translation>
    </message>
    <message>
        <source>Suggested foods</source>
        <translation>Vorgeschlagene Lebensmittel</translation>
    </message>
    <message>
        <source>Continue Adding</source>
        <translation>Weiter hinzufügen</translation>
    </message>
    <message>
        <source>No Thanks</source>
        <translation>Nein, danke</translation>
    </message>
</context>
<context>
    <name>FullImageSheet</name>
    <message>
        <source>Close picture</source>
        <translation>Bild schließen</translation>
    </message>
</context>
<context>
    <name>IngredientRow</name>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
</context>
<context>
    <name>IngredientSearchScreen</name>
    <message>
        <source>Search Ingredients</source>
        <translation>Zutaten suchen</translation>
    </message>
</context>
<context>
    <name>ItemSearchScreen</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Filter by brand</source>
        <translation>Nach Marke filtern</translation>
    </message>
    <message>
        <source>Filter by category</source>
        <translation>Nach Kategorie filtern</translation>
    </message>
    <message>
        <source>Type the name of a food to search, for example “banana” or “rice”.</source>
        <translation>Geben Sie den Namen eines Lebensmittels ein, zum Beispiel „banana“ oder „rice“.</translation>
    </message>
    <message>
        <source>Recent foods</source>
        <translation>Zuletzt hinzugefügt</translation>
    </message>
    <message>
        <source>Search results</source>
        <translation>Suchergebnisse</translation>
    </message>
</context>
<context>
    <name>ItemSearchUIView</name>
    <message>
        <source>All Brands</source>
        <translation>Alle Marken</translation>
    </message>
    <message>
        <source>All Categories</source>
        <translation>Alle Kategorien</translation>
    </message>
</context>
<context>
    <name>MealNutrients</name>
    <message>
        <source>1 serving of %1</source>
        <translation>1 Portion von %1</translation>
    </message>
    <message>
        <source>%1 servings of %2</source>
        <translation>%1 Portionen von %2</translation>
    </message>
    <message>
        <source>exch.</source>
        <translation>BW</translation>
    </message>
    <message>
        <source>net %1</source>
        <translation>netto %1</translation>
    </message>
</context>
<context>
    <name>NumberStepperControl</name>
    <message>
        <source>Number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Decrease %1</source>
        <translation>%1 verringern</translation>
    </message>
    <message>
        <source>Increase %1</source>
        <translation>%1 erhöhen</translation>
    </message>
</context>
<context>
    <name>Nutrika</name>
    <message>
        <source>Nutrika carbohydrate calculator</source>
        <translation>Nutrika Kohlenhydrat-Rechner</translation>
    </message>
</context>
<context>
    <name>RecipeSearchScreen</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Saved Meals</source>
        <translation>Gespeicherte Mahlzeiten</translation>
    </message>
    <message>
        <source>No saved meals yet. Tap “Create Meal”, add its ingredients and save it: it will be listed here.</source>
        <translation>Noch keine gespeicherten Mahlzeiten. Tippen Sie auf „Mahlzeit erstellen“, fügen Sie die Zutaten hinzu und speichern Sie sie: Sie erscheint dann hier.</translation>
    </message>
    <message>
        <source>Create Meal</source>
        <translation>Mahlzeit erstellen</translation>
    </message>
</context>
<context>
    <name>RecipeTopTable</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Meal Name</source>
        <translation>Name der Mahlzeit</translation>
    </message>
    <message>
        <source>Meal name</source>
        <translation>Name der Mahlzeit</translation>
    </message>
    <message>
        <source>Servings</source>
        <translation>Portionen</translation>
    </message>
    <message>
        <source>Servings %1</source>
        <translation>Portionen %1</translation>
    </message>
    <message>
        <source>1 portion (g)</source>
        <translation>1 Portion (g)</translation>
    </message>
    <message>
        <source>One portion %1</source>
        <translation>Eine Portion %1</translation>
    </message>
</context>
<context>
    <name>SearchContainerScreen</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
</context>
<context>
    <name>SelectPortionScreen</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Select your portion</source>
        <translation>Wählen Sie Ihre Portion</translation>
    </message>
    <message>
        <source>Double tap an image to enlarge it.</source>
        <translation>Doppeltippen Sie auf ein Bild, um es zu vergrößern.</translation>
    </message>
    <message>
        <source>Portions</source>
        <translation>Portionen</translation>
    </message>
    <message>
        <source>Select Portion</source>
        <translation>Portion wählen</translation>
    </message>
</context>
<context>
    <name>ServiceFailure</name>
    <message>
        <source>Connection Error</source>
        <translation>Verbindungsfehler</translation>
    </message>
    <message>
        <source>Unable to connect to server, try again later</source>
        <translation>Keine Verbindung zum Server, bitte später erneut versuchen</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Error loading data</source>
        <translation>Fehler beim Laden der Daten</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>Loading</source>
        <translation>Wird geladen</translation>
    </message>
</context>
<context>
    <name>TopTable</name>
    <message>
        <source>Portion</source>
        <translation>Portion</translation>
    </message>
    <message>
        <source>Portion %1, change</source>
        <translation>Portion %1, ändern</translation>
    </message>
    <message>
        <source>Portion %1</source>
        <translation>Portion %1</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
</context>
<context>
    <name>ViewContainer</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>nutrika::AddToCalcPreviewUIView</name>
    <message>
        <source>Add to meal</source>
        <translation>Zur Mahlzeit hinzufügen</translation>
    </message>
    <message>
        <source>Add to calculator</source>
        <translation>Zum Rechner hinzufügen</translation>
    </message>
</context>
<context>
    <name>nutrika::CalculatorLinesModel</name>
    <message>
        <source>fibre unknown</source>
        <translation>Ballaststoffe unbekannt</translation>
    </message>
</context>
<context>
    <name>nutrika::CarbCounterUIView</name>
    <message>
        <source>%1 FPU</source>
        <translation>%1 FPE</translation>
    </message>
    <message>
        <source>%1 FPU · absorbed over %2 h</source>
        <translation>%1 FPE · aufgenommen über %2 h</translation>
    </message>
    <message>
        <source>Total %1</source>
        <translation>%1 gesamt</translation>
    </message>
    <message>
        <source>Carbohydrates</source>
        <translation>Kohlenhydrate</translation>
    </message>
    <message>
        <source>Removed %1</source>
        <translation>%1 entfernt</translation>
    </message>
    <message numerus="yes">
        <source>net unknown: %n line(s) without fibre</source>
        <translation><numerusform>netto unbekannt: %n Zeile ohne Ballaststoffe</numerusform><numerusform>netto unbekannt: %n Zeilen ohne Ballaststoffe</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>FPU unknown: %n line(s) without fat or protein</source>
        <translation><numerusform>FPE unbekannt: %n Zeile ohne Fett oder Eiweiß</numerusform><numerusform>FPE unbekannt: %n Zeilen ohne Fett oder Eiweiß</numerusform></translation>
    </message>
</context>
<context>
    <name>nutrika::CreateRecipeUIView</name>
    <message>
        <source>New Meal</source>
        <translation>Neue Mahlzeit</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>nutrika::ItemSearchUIView</name>
    <message>
        <source>%1 %2 matching your search</source>
        <translation>%1 %2 zu Ihrer Suche</translation>
    </message>
    <message>
        <source>item</source>
        <translation>Treffer</translation>
    </message>
    <message>
        <source>items</source>
        <translation>Treffer</translation>
    </message>
    <message>
        <source>A brand or category filter is set. Choose “%1” or “%2” to search without it.</source>
        <translation>Ein Marken- oder Kategoriefilter ist gesetzt. Wählen Sie „%1“ oder „%2“, um ohne ihn zu suchen.</translation>
    </message>
</context>
<context>
    <name>nutrika::SearchContainerUIView</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Meals</source>
        <translation>Mahlzeiten</translation>
    </message>
</context>
<context>
    <name>nutrika::SearchResultsModel</name>
    <message>
        <source>Branded</source>
        <translation>Markenprodukte</translation>
    </message>
    <message>
        <source>Non-Branded</source>
        <translation>Ohne Marke</translation>
    </message>
</context>
<context>
    <name>nutrika::SelectPortionUIView</name>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Descriptions</source>
        <translation>Beschreibungen</translation>
    </message>
</context>
</TS>