<?xml version='1.0' encoding='utf-8'?>
<TS version="2.1" language="fr_FR">
<context>
    <name>AddToCalcPreviewScreen</name>
    <message>
        <source>Add Item</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Carbohydrates %1</source>
        <translation>Glucides %1</translation>
    </message>
    <message>
        <source>loading</source>
        <translation>chargement</translation>
    </message>
    <message>
        <source>Carbohydrates</source>
        <translation>Glucides</translation>
    </message>
    <message>
        <source>The carbohydrates of this portion could not be loaded. Check the connection, then go back and open it again.</source>
        <translation>Les glucides de cette portion n’ont pas pu être chargés. Vérifiez la connexion, puis revenez en arrière et ouvrez-la à nouveau.</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>Search more foods</source>
        <translation>Autres aliments</translation>
    </message>
</context>
<context>
    <name>CalculatorColumnHeader</name>
    <message>
        <source>Food/Drink</source>
        <translation>Aliment/Boisson</translation>
    </message>
</context>
<context>
    <name>CalculatorLine</name>
    <message>
        <source>Remove %1</source>
        <translation>Retirer %1</translation>
    </message>
</context>
<context>
    <name>CalculatorTotalRow</name>
    <message>
        <source>Total %1</source>
        <translation>Total %1</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
</context>
<context>
    <name>CarbCounterScreen</name>
    <message>
        <source>Carb Calculator</source>
        <translation>Calculateur de glucides</translation>
    </message>
    <message>
        <source>Calculator</source>
        <translation>Calculateur</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Search more foods</source>
        <translation>Autres aliments</translation>
    </message>
</context>
<context>
    <name>CreateRecipeScreen</name>
    <message>
        <source>Quantity</source>
        <translation>Quantité</translation>
    </message>
    <message>
        <source>Quantity %1</source>
        <translation>Quantité %1</translation>
    </message>
    <message>
        <source>Total Carbohydrates %1</source>
        <translation>Glucides totaux %1</translation>
    </message>
    <message>
        <source>Total Carbohydrates</source>
        <translation>Glucides totaux</translation>
    </message>
    <message>
        <source>Ingredients</source>
        <translation>Ingrédients</translation>
    </message>
    <message>
        <source>Weight (g)</source>
        <translation>Poids (g)</translation>
    </message>
    <message>
        <source>No ingredients yet. Use “Add Ingredients” to add the foods of this meal.</source>
        <translation>Pas encore d’ingrédients. Utilisez « Ajouter des ingrédients » pour ajouter les aliments de ce repas.</translation>
    </message>
    <message>
        <source>This meal has no ingredients.</source>
        <translation>Ce repas n’a pas d’ingrédients.</translation>
    </message>
    <message>
        <source>Total %1</source>
        <translation>Total %1</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Add Ingredients</source>
        <translation>Ajouter des ingrédients</translation>
    </message>
    <message>
        <source>Save Meal</source>
        <translation>Enregistrer le repas</translation>
    </message>
    <message>
        <source>Add to Calculator</source>
        <translation>Ajouter au calculateur</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mettre à jour</translation>
    </message>
</context>
<context>
    <name>CustomAmountBox</name>
    <message>
        <source>Custom amount in grams</source>
        <translation>Quantité personnalisée en grammes</translation>
    </message>
    <message>
        <source>Enter Amount (g)</source>
        <translation>Saisir la quantité (g)</translation>
    </message>
</context>
<context>
    <name>FilterList</name>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>Type a search first</source>
        <translation>Saisissez d’abord une recherche</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>FoodAccompanimentsScreen</name>
    <message>
        <source>Would you like to add anything else?</source>
        <translation>Voulez-vous ajouter autre chose ?</translation>
    </message>
    <message>
        <source>The food item you added is commonly consumed with:</source>
        <translation>L’aliment ajouté est souvent consommé avec :</translation>
    </message>
    <message>
        <source>Suggested foods</source>
        <translation>Aliments suggérés</translation>
    </message>
    <message>
        <source>Continue Adding</source>
        <translation>Continuer l’ajout</translation>
    </message>
    <message>
        <source>No Thanks</source>
        <translation>Non merci</translation>
    </message>
</context>
<context>
    <name>FullImageSheet</name>
    <message>
        <source>Close picture</source>
        <translation>Fermer l’image</translation>
    </message>
</context>
<context>
    <name>IngredientRow</name>
    <message>
        <source>Remove %1</source>
        <translation>Retirer %1</translation>
    </message>
</context>
<context>
    <name>IngredientSearchScreen</name>
    <message>
        <source>Search Ingredients</source>
        <translation>Rechercher des ingrédients</translation>
    </message>
</context>
<context>
    <name>ItemSearchScreen</name>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Filter by brand</source>
        <translation>Filtrer par marque</translation>
    </message>
    <message>
        <source>Filter by category</source>
        <translation>Filtrer par catégorie</translation>
    </message>
    <message>
        <source>Type the name of a food to search, for example “banana” or “rice”.</source>
        <translation>Saisissez le nom d’un aliment, par exemple « banana » ou « rice ».</translation>
    </message>
    <message>
        <source>Recent foods</source>
        <translation>Aliments récents</translation>
    </message>
    <message>
        <source>Search results</source>
        <translation>Résultats de la recherche</translation>
    </message>
</context>
<context>
    <name>ItemSearchUIView</name>
    <message>
        <source>All Brands</source>
        <translation>Toutes les marques</translation>
    </message>
    <message>
        <source>All Categories</source>
        <translation>Toutes les catégories</translation>
    </message>
</context>
<context>
    <name>MealNutrients</name>
    <message>
        <source>1 serving of %1</source>
        <translation>1 portion sur %1</translation>
    </message>
    <message>
        <source>%1 servings of %2</source>
        <translation>%1 portions sur %2</translation>
    </message>
    <message>
        <source>exch.</source>
        <translation>éch.</translation>
    </message>
    <message>
        <source>net %1</source>
        <translation>net %1</translation>
    </message>
</context>
<context>
    <name>NumberStepperControl</name>
    <message>
        <source>Number</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Decrease %1</source>
        <translation>Diminuer %1</translation>
    </message>
    <message>
        <source>Increase %1</source>
        <translation>Augmenter %1</translation>
    </message>
</context>
<context>
    <name>Nutrika</name>
    <message>
        <source>Nutrika carbohydrate calculator</source>
        <translation>Nutrika, calculateur de glucides</translation>
    </message>
</context>
<context>
    <name>RecipeSearchScreen</name>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Saved Meals</source>
        <translation>Repas enregistrés</translation>
    </message>
    <message>
        <source>No saved meals yet. Tap “Create Meal”, add its ingredients and save it: it will be listed here.</source>
        <translation>Aucun repas enregistré. Touchez « Créer un repas », ajoutez ses ingrédients et enregistrez-le : il apparaîtra ici.</translation>
    </message>
    <message>
        <source>Create Meal</source>
        <translation>Créer un repas</translation>
    </message>
</context>
<context>
    <name>RecipeTopTable</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Meal Name</source>
        <translation>Nom du repas</translation>
    </message>
    <message>
        <source>Meal name</source>
        <translation>Nom du repas</translation>
    </message>
    <message>
        <source>Servings</source>
        <translation>Portions</translation>
    </message>
    <message>
        <source>Servings %1</source>
        <translation>Portions %1</translation>
    </message>
    <message>
        <source>1 portion (g)</source>
        <translation>1 portion (g)</translation>
    </message>
    <message>
        <source>One portion %1</source>
        <translation>Une portion %1</translation>
    </message>
</context>
<context>
    <name>SearchContainerScreen</name>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
</context>
<context>
    <name>SelectPortionScreen</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Select your portion</source>
        <translation>Choisissez votre portion</translation>
    </message>
    <message>
        <source>Double tap an image to enlarge it.</source>
        <translation>Touchez deux fois une image pour l’agrandir.</translation>
    </message>
    <message>
        <source>Portions</source>
        <translation>Portions</translation>
    </message>
    <message>
        <source>Select Portion</source>
        <translation>Choisir la portion</translation>
    </message>
</context>
<context>
    <name>ServiceFailure</name>
    <message>
        <source>Connection Error</source>
        <translation>Erreur de connexion</translation>
    </message>
    <message>
        <source>Unable to connect to server, try again later</source>
        <translation>Impossible de se connecter au serveur, réessayez plus tard</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Error loading data</source>
        <translation>Erreur lors du chargement des données</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>Loading</source>
        <translation>Chargement</translation>
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
        <translation>Portion %1, modifier</translation>
    </message>
    <message>
        <source>Portion %1</source>
        <translation>Portion %1</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantité</translation>
    </message>
</context>
<context>
    <name>ViewContainer</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>nutrika::AddToCalcPreviewUIView</name>
    <message>
        <source>Add to meal</source>
        <translation>Ajouter au repas</translation>
    </message>
    <message>
        <source>Add to calculator</source>
        <translation>Ajouter au calculateur</translation>
    </message>
</context>
<context>
    <name>nutrika::CalculatorLinesModel</name>
    <message>
        <source>fibre unknown</source>
        <translation>fibres inconnues</translation>
    </message>
</context>
<context>
    <name>nutrika::CarbCounterUIView</name>
    <message>
        <source>%1 FPU</source>
        <translation>%1 UPL</translation>
    </message>
    <message>
        <source>%1 FPU · absorbed over %2 h</source>
        <translation>%1 UPL · absorbées sur %2 h</translation>
    </message>
    <message>
        <source>Total %1</source>
        <translation>Total des %1</translation>
    </message>
    <message>
        <source>Carbohydrates</source>
        <translation>glucides</translation>
    </message>
    <message>
        <source>Removed %1</source>
        <translation>%1 retiré</translation>
    </message>
    <message numerus="yes">
        <source>net unknown: %n line(s) without fibre</source>
        <translation><numerusform>net inconnu : %n ligne sans fibres</numerusform><numerusform>net inconnu : %n lignes sans fibres</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>FPU unknown: %n line(s) without fat or protein</source>
        <translation><numerusform>UPL inconnues : %n ligne sans lipides ou protéines</numerusform><numerusform>UPL inconnues : %n lignes sans lipides ou protéines</numerusform></translation>
    </message>
</context>
<context>
    <name>nutrika::CreateRecipeUIView</name>
    <message>
        <source>New Meal</source>
        <translation>Nouveau repas</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>nutrika::ItemSearchUIView</name>
    <message>
        <source>%1 %2 matching your search</source>
        <translation>%1 %2 correspondant à votre recherche</translation>
    </message>
    <message>
        <source>item</source>
        <translation>élément</translation>
    </message>
    <message>
        <source>items</source>
        <translation>éléments</translation>
    </message>
    <message>
        <source>A brand or category filter is set. Choose “%1” or “%2” to search without it.</source>
        <translation>Un filtre de marque ou de catégorie est actif. Choisissez « %1 » ou « %2 » pour rechercher sans lui.</translation>
    </message>
</context>
<context>
    <name>nutrika::SearchContainerUIView</name>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Meals</source>
        <translation>Repas</translation>
    </message>
</context>
<context>
    <name>nutrika::SearchResultsModel</name>
    <message>
        <source>Branded</source>
        <translation>Produits de marque</translation>
    </message>
    <message>
        <source>Non-Branded</source>
        <translation>Sans marque</translation>
    </message>
</context>
<context>
    <name>nutrika::SelectPortionUIView</name>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Descriptions</source>
        <translation>Descriptions</translation>
    </message>
</context>
</TS>