<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_CA" sourcelanguage="en">
<context>
    <name>Zenta</name>
    <message>
        <source>A GST/HST amount is required (0.00 is acceptable)</source>
        <translation>Un montant de TPS/TVH est requis (0,00 est accepté)</translation>
    </message>
    <message>
        <source>A payment amount is required</source>
        <translation>Un montant de paiement est requis</translation>
    </message>
    <message>
        <source>Accept this distribution</source>
        <translation>Accepter cette ventilation</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;Accepter</translation>
    </message>
    <message>
        <source>Amount of Payment</source>
        <translation>Montant du paiement</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Montant</translation>
    </message>
    <message>
        <source>An amount is required.</source>
        <translation>Un montant est requis.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this distribution?</source>
        <translation>Voulez-vous vraiment supprimer cette ventilation?</translation>
    </message>
    <message>
        <source>Cancel this distribution</source>
        <translation>Annuler cette ventilation</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Cannot accept distibution.</source>
        <translation>Impossible d&#x27;accepter la ventilation.</translation>
    </message>
    <message>
        <source>Comments / Contact</source>
        <translation>Commentaires / personne-ressource</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Suppr.</translation>
    </message>
    <message>
        <source>Delete this distribution?</source>
        <translation>Supprimer cette ventilation?</translation>
    </message>
    <message>
        <source>Due Date</source>
        <translation>Date d&#x27;échéance</translation>
    </message>
    <message>
        <source>Enter applicable comments / contact information</source>
        <translation>Entrez les commentaires ou les coordonnées utiles</translation>
    </message>
    <message>
        <source>Enter the GST Amount</source>
        <translation>Entrez le montant de la TPS</translation>
    </message>
    <message>
        <source>Enter the Invoice Number or a description of the invoice</source>
        <translation>Entrez le numéro de la facture ou une description de celle-ci</translation>
    </message>
    <message>
        <source>Enter the amount of the invoice, including GST</source>
        <translation>Entrez le montant de la facture, TPS comprise</translation>
    </message>
    <message>
        <source>Enter the amount of the payment</source>
        <translation>Entrez le montant du paiement</translation>
    </message>
    <message>
        <source>Enter the amount of the payment, including GST</source>
        <translation>Entrez le montant du paiement, TPS comprise</translation>
    </message>
    <message>
        <source>Enter the date of the invoice</source>
        <translation>Entrez la date de la facture</translation>
    </message>
    <message>
        <source>Enter the date on which the payment is due</source>
        <translation>Entrez la date d&#x27;échéance du paiement</translation>
    </message>
    <message>
        <source>Enter the end of the period for this payment</source>
        <translation>Entrez la fin de la période visée par ce paiement</translation>
    </message>
    <message>
        <source>Enter the other amount of the payment</source>
        <translation>Entrez l&#x27;autre montant du paiement</translation>
    </message>
    <message>
        <source>Enter the start of the period for this payment</source>
        <translation>Entrez le début de la période visée par ce paiement</translation>
    </message>
    <message>
        <source>Expense</source>
        <translation>Dépense</translation>
    </message>
    <message>
        <source>Expense (CAD)</source>
        <translation>Dépense (CAD)</translation>
    </message>
    <message>
        <source>GST/HST</source>
        <translation>TPS/TVH</translation>
    </message>
    <message>
        <source>General Ledger Account No., Payment Description/Sub Ledger</source>
        <translation>N° de compte du grand livre, description du paiement/grand livre auxiliaire</translation>
    </message>
    <message>
        <source>Invoice Amount</source>
        <translation>Montant de la facture</translation>
    </message>
    <message>
        <source>Invoice Date</source>
        <translation>Date de la facture</translation>
    </message>
    <message>
        <source>Invoice No / Descript.</source>
        <translation>N° de facture / descr.</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Poste</translation>
    </message>
    <message>
        <source>Net Expense</source>
        <translation>Dépense nette</translation>
    </message>
    <message>
        <source>Other Amount</source>
        <translation>Autre montant</translation>
    </message>
    <message>
        <source>Payment Amount</source>
        <translation>Montant du paiement</translation>
    </message>
    <message>
        <source>Payment For</source>
        <translation>Objet du paiement</translation>
    </message>
    <message>
        <source>&amp;Payment For:</source>
        <translation>&amp;Objet du paiement :</translation>
    </message>
    <message>
        <source>Period From</source>
        <translation>Période du</translation>
    </message>
    <message>
        <source>Period To</source>
        <translation>Période au</translation>
    </message>
    <message>
        <source>Refundable GST/HST</source>
        <translation>TPS/TVH remboursable</translation>
    </message>
    <message>
        <source>Statement of Account only</source>
        <translation>Relevé de compte seulement</translation>
    </message>
    <message>
        <source>The General Ledger Account Number must not be more than 30 characters in length.</source>
        <translation>Le numéro de compte du grand livre ne doit pas dépasser 30 caractères.</translation>
    </message>
    <message>
        <source>The payment amount does not equal the G/L Distribution amount. Please click the &quot;View Dist&quot; button.</source>
        <translation>Le montant du paiement ne correspond pas au montant de la ventilation du grand livre. Cliquez sur le bouton « Ventil. ».</translation>
    </message>
    <message>
        <source>The total amounts you enter must be equal to the &#x27;Amount to Distribute&#x27;.</source>
        <translation>Le total des montants entrés doit être égal au « montant à ventiler ».</translation>
    </message>
    <message>
        <source>Total Expense</source>
        <translation>Dépense totale</translation>
    </message>
    <message>
        <source>View Dist</source>
        <translation>Ventil.</translation>
    </message>
    <message>
        <source>YYYY/MM/DD</source>
        <translation>AAAA/MM/JJ</translation>
    </message>
    <message>
        <source>You must enter the G/L Distribution. Please click the &quot;View Dist&quot; button.</source>
        <translation>Vous devez entrer la ventilation du grand livre. Cliquez sur le bouton « Ventil. ».</translation>
    </message>
    <message>
        <source>Calendar (F4)</source>
        <translation>Calendrier (F4)</translation>
    </message>
    <message>
        <source>Not a date: the previous date was kept.</source>
        <translation>Date invalide : la date précédente a été conservée.</translation>
    </message>
    <message>
        <source>Invoice Number / Description</source>
        <translation>Numéro / description de la facture</translation>
    </message>
    <message>
        <source>G/L Account</source>
        <translation>Compte du grand livre</translation>
    </message>
    <message>
        <source>Accounting Rate</source>
        <translation>Taux comptable</translation>
    </message>
    <message>
        <source>Invoice Amount (CAD)</source>
        <translation>Montant de la facture (CAD)</translation>
    </message>
    <message>
        <source>Delete this invoice?</source>
        <translation>Supprimer cette facture?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this invoice?</source>
        <translation>Voulez-vous vraiment supprimer cette facture?</translation>
    </message>
    <message>
        <source>Invoice Date Validation</source>
        <translation>Validation de la date de facture</translation>
    </message>
    <message>
        <source>Invoice Number/Description Validation</source>
        <translation>Validation du numéro ou de la description de la facture</translation>
    </message>
    <message>
        <source>You have entered future dated invoice, would you like to change it?</source>
        <translation>Vous avez saisi une facture postdatée; voulez-vous la modifier?</translation>
    </message>
    <message>
        <source>The Invoice Date you entered is more than a year earlier than the current date, would you like to change it?</source>
        <translation>La date de facture saisie précède de plus d’un an la date du jour; voulez-vous la modifier?</translation>
    </message>
    <message>
        <source>The Invoice Number/Description cannot be more than 255 characters.</source>
        <translation>Le numéro ou la description de la facture ne peut dépasser 255 caractères.</translation>
    </message>
    <message>
        <source>The Invoice Date cannot be set to more than two years into the future. Please adjust the date.</source>
        <translation>La date de facture ne peut dépasser de plus de deux ans la date du jour. Veuillez corriger la date.</translation>
    </message>
    <message>
        <source>That amount would cause the foreign currency amount to be invalid (it must be between -9,999,999.99 and 9,999,999.99)</source>
        <translation>Ce montant rendrait le montant en devise invalide (il doit être compris entre -9 999 999,99 et 9 999 999,99)</translation>
    </message>
    <message>
        <source>Amount to distribute</source>
        <translation>Montant à répartir</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Reste</translation>
    </message>
    <message>
        <source>Not in the chart of accounts</source>
        <translation>Absent du plan comptable</translation>
    </message>
    <message>
        <source>The rate gives GST/HST of</source>
        <translation>Au taux, la TPS/TVH serait de</translation>
    </message>
    <message>
        <source>Fill in the GST/HST included at the rate (F8)</source>
        <translation>Inscrire la TPS/TVH incluse au taux (F8)</translation>
    </message>
    <message>
        <source>Delete this line</source>
        <translation>Supprimer cette ligne</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Voir</translation>
    </message>
    <message>
        <source>View the G/L distribution</source>
        <translation>Voir la ventilation du grand livre</translation>
    </message>
    <message>
        <source>An invoice date is required</source>
        <translation>Une date de facture est requise</translation>
    </message>
    <message>
        <source>An invoice number / description is required</source>
        <translation>Un numéro ou une description de facture est requis</translation>
    </message>
    <message>
        <source>An invoice amount is required</source>
        <translation>Un montant de facture est requis</translation>
    </message>
    <message>
        <source>The invoice amount does not equal the G/L Distribution amount. Please click the &quot;View Dist&quot; button.</source>
        <translation>Le montant de la facture ne correspond pas au montant de la ventilation du grand livre. Cliquez sur le bouton « Ventil. ».</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Courriel</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Factures</translation>
    </message>
    <message>
        <source>G/L Distribution</source>
        <translation>Ventilation du grand livre</translation>
    </message>
    <message>
        <source>Line Items</source>
        <translation>Postes</translation>
    </message>
    <message>
        <source>Paste Invoices</source>
        <translation>Coller des factures</translation>
    </message>
    <message>
        <source>These rows were not pasted:</source>
        <translation>Ces lignes n’ont pas été collées :</translation>
    </message>
    <message>
        <source>These lines were not pasted:</source>
        <translation>Ces lignes n’ont pas été collées :</translation>
    </message>
    <message>
        <source>not a date</source>
        <translation>pas une date</translation>
    </message>
    <message>
        <source>not an amount</source>
        <translation>pas un montant</translation>
    </message>
    <message>
        <source>refused as a duplicate</source>
        <translation>refusée : facture en double</translation>
    </message>
    <message>
        <source>refused: over the amount limit</source>
        <translation>refusée : au-delà du montant limite</translation>
    </message>
    <message>
        <source>left out to change the date</source>
        <translation>laissée de côté pour changer la date</translation>
    </message>
    <message>
        <source>The list holds at most 32,767 invoices: nothing was pasted.</source>
        <translation>La liste contient au plus 32 767 factures : rien n’a été collé.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Row %1, %2: %3</source>
        <translation>Ligne %1, %2 : %3</translation>
    </message>
    <message>
        <source>Rows: %1</source>
        <translation>Lignes : %1</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1 : %2</translation>
    </message>
    <message>
        <source>Line %1: the account %2 is not in the chart of accounts.</source>
        <translation>Ligne %1 : le compte %2 n’est pas dans le plan comptable.</translation>
    </message>
    <message>
        <source>Line %1: the account %2 is inactive in the chart of accounts.</source>
        <translation>Ligne %1 : le compte %2 est inactif dans le plan comptable.</translation>
    </message>
    <message>
        <source>%1 (inactive)</source>
        <translation>%1 (inactif)</translation>
    </message>
    <message>
        <source>The chart file cannot be read.</source>
        <translation>Le fichier du plan comptable ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The chart file is too large to be a chart of accounts.</source>
        <translation>Le fichier est trop volumineux pour être un plan comptable.</translation>
    </message>
    <message>
        <source>A line needs an account number and a name, separated by a tab or a comma.</source>
        <translation>Une ligne doit contenir un numéro de compte et un nom, séparés par une tabulation ou une virgule.</translation>
    </message>
    <message>
        <source>A line holds at most three columns: number, name and active.</source>
        <translation>Une ligne contient au plus trois colonnes : numéro, nom et actif.</translation>
    </message>
    <message>
        <source>The account number is missing.</source>
        <translation>Le numéro de compte est manquant.</translation>
    </message>
    <message>
        <source>The account number holds characters a payer cannot type.</source>
        <translation>Le numéro de compte contient des caractères qu’un payeur ne peut pas taper.</translation>
    </message>
    <message>
        <source>A cell holds a line break; is a quote left open?</source>
        <translation>Une cellule contient un saut de ligne; un guillemet est-il resté ouvert?</translation>
    </message>
    <message>
        <source>The active column must read yes, no, true, false, 1, 0, active or inactive.</source>
        <translation>La colonne actif doit indiquer yes, no, true, false, 1, 0, active ou inactive.</translation>
    </message>
    <message>
        <source>The account number is already on an earlier line.</source>
        <translation>Le numéro de compte figure déjà sur une ligne précédente.</translation>
    </message>
    <message>
        <source>Choose Default G/L Account...</source>
        <translation>Choisir le compte du grand livre par défaut...</translation>
    </message>
    <message>
        <source>Default G/L Account</source>
        <translation>Compte du grand livre par défaut</translation>
    </message>
    <message>
        <source>Chart file:</source>
        <translation>Fichier du plan comptable :</translation>
    </message>
    <message>
        <source>Chart file</source>
        <translation>Fichier du plan comptable</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>Rechercher :</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Parcourir...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Choose a chart file: one account a line, its number and name separated by a tab or a comma.</source>
        <translation>Choisissez un fichier de plan comptable : un compte par ligne, son numéro et son nom séparés par une tabulation ou une virgule.</translation>
    </message>
    <message>
        <source>Chart files (*.csv *.tsv *.txt);;All files (*)</source>
        <translation>Plans comptables (*.csv *.tsv *.txt);;Tous les fichiers (*)</translation>
    </message>
</context>
</TS>
