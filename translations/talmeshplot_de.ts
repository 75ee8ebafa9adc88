<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ArrayLayout</name>
    <message>
        <source>there is no array in it</source>
        <translation>die Datei enthält kein Feld</translation>
    </message>
    <message>
        <source>the array holds no values</source>
        <translation>das Feld enthält keine Werte</translation>
    </message>
    <message>
        <source>nothing tells which axis of %1 is the time: add an array of the times, called &quot;time&quot;, or name one array with --sheet</source>
        <translation>nichts sagt, welche Achse von %1 die Zeit ist: ergänzen Sie ein Feld der Zeiten namens &quot;time&quot;, oder nennen Sie ein Feld mit --sheet</translation>
    </message>
    <message>
        <source>it holds several tables (%1); name one with --sheet</source>
        <translation>die Datei enthält mehrere Tabellen (%1); nennen Sie eine mit --sheet</translation>
    </message>
    <message>
        <source>%1 has %2 axes; arrays of runs, times and items have three</source>
        <translation>%1 hat %2 Achsen; Felder aus Läufen, Zeiten und Größen haben drei</translation>
    </message>
    <message>
        <source>its arrays are no table: %1; columns need equal lengths, and arrays of runs, times and items as many times as &quot;time&quot; has</source>
        <translation>ihre Felder sind keine Tabelle: %1; Spalten müssen gleich lang sein, und Felder aus Läufen, Zeiten und Größen so viele Zeiten haben wie &quot;time&quot;</translation>
    </message>
</context>
<context>
    <name>CategoryColumns</name>
    <message>
        <source>The column %1 holds the same text in all rows, %2, and is left out.</source>
        <translation>Die Spalte %1 enthält in allen Zeilen denselben Text, %2, und wird ausgelassen.</translation>
    </message>
    <message>
        <source>the column %1 holds %2 different texts: %3</source>
        <translation>die Spalte %1 enthält %2 verschiedene Texte: %3</translation>
    </message>
    <message>
        <source>The column %1 holds no other text than %2, and is left out.</source>
        <translation>Die Spalte %1 enthält keinen anderen Text als %2 und wird weggelassen.</translation>
    </message>
</context>
<context>
    <name>CategoryGroups</name>
    <message>
        <source>The column %1 has no text for each run.</source>
        <translation>Die Spalte %1 hat nicht für jeden Lauf einen Text.</translation>
    </message>
    <message>
        <source>(no text)</source>
        <translation>(kein Text)</translation>
    </message>
    <message>
        <source>The column %1 has %2 different texts; there are colours for %3 groups.</source>
        <translation>Die Spalte %1 hat %2 verschiedene Texte; Farben gibt es für %3 Gruppen.</translation>
    </message>
</context>
<context>
    <name>ColouredRuns</name>
    <message>
        <source>Other runs</source>
        <translation>Andere Läufe</translation>
    </message>
</context>
<context>
    <name>CommonGrid</name>
    <message>
        <source>line %1: the run has a second point at the same time, and %2. Name the columns that tell the runs apart (--run)</source>
        <translation>Zeile %1: Der Lauf hat einen zweiten Punkt zur selben Zeit, und %2. Bitte die Spalten nennen, die die Läufe unterscheiden (--run)</translation>
    </message>
    <message>
        <source>The runs have different times. They are shown at %1 of them, with straight lines between the points of each run.</source>
        <translation>Die Läufe haben verschiedene Zeiten. Sie werden zu %1 davon gezeigt, mit Geraden zwischen den Punkten jedes Laufs.</translation>
    </message>
    <message>
        <source>The runs have different times. They are shown at all %1 of them, with straight lines between the points of each run.</source>
        <translation>Die Läufe haben verschiedene Zeiten. Sie werden zu allen %1 gezeigt, mit Geraden zwischen den Punkten jedes Laufs.</translation>
    </message>
    <message>
        <source>The runs have different times. They are shown at all %1 of them, with gaps where a run has no point.</source>
        <translation>Die Läufe haben verschiedene Zeiten. Sie werden zu allen %1 gezeigt, mit Lücken, wo ein Lauf keinen Punkt hat.</translation>
    </message>
    <message>
        <source>the runs have %1 different times together, too many to show each run at all of them; --unequal interpolate shows it at fewer</source>
        <translation>die Läufe haben zusammen %1 verschiedene Zeiten, zu viele, um jeden Lauf zu allen zu zeigen; --unequal interpolate zeigt ihn zu weniger</translation>
    </message>
    <message>
        <source>Rows without a time are left out, because the runs differ in their times.</source>
        <translation>Zeilen ohne Zeit werden ausgelassen, weil sich die Zeiten der Läufe unterscheiden.</translation>
    </message>
    <message>
        <source>no row has a time</source>
        <translation>keine Zeile hat eine Zeit</translation>
    </message>
    <message>
        <source>the runs have %1 different times together, too many to show each run at all of them, and some runs have too few points to be shown at fewer; --layout table shows the rows as they are</source>
        <translation>die Läufe haben zusammen %1 verschiedene Zeiten, zu viele, um jeden Lauf zu allen zu zeigen, und einige haben zu wenige Punkte, um sie zu weniger Zeiten zu zeigen; --layout table zeigt die Zeilen, wie sie sind</translation>
    </message>
</context>
<context>
    <name>ComparisonText</name>
    <message>
        <source>larger in selected</source>
        <translation>größer in Auswahl</translation>
    </message>
    <message>
        <source>smaller in selected</source>
        <translation>kleiner in Auswahl</translation>
    </message>
    <message>
        <source>larger and smaller</source>
        <translation>größer und kleiner</translation>
    </message>
    <message>
        <source>no values</source>
        <translation>keine Werte</translation>
    </message>
    <message>
        <source>constant</source>
        <translation>konstant</translation>
    </message>
    <message>
        <source>too many values</source>
        <translation>zu viele Werte</translation>
    </message>
    <message>
        <source>too few sets</source>
        <translation>zu wenige Sätze</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>changes in a run</source>
        <translation>ändert sich im Lauf</translation>
    </message>
    <message>
        <source>alike in first half</source>
        <translation>gleich in 1. Hälfte</translation>
    </message>
    <message>
        <source>Not tested. No selected run, or no other one, has a value.</source>
        <translation>Nicht geprüft. Kein ausgewählter oder kein übriger Lauf hat einen Wert.</translation>
    </message>
    <message>
        <source>Not tested. All runs have the same value.</source>
        <translation>Nicht geprüft. Alle Läufe haben denselben Wert.</translation>
    </message>
    <message>
        <source>Chosen by this parameter: the selection asks for its values, so a test would only say so.</source>
        <translation>Nach diesem Parameter gewählt: Die Auswahl fragt nach seinen Werten, ein Test würde nur das sagen.</translation>
    </message>
    <message>
        <source>Not tested. Counts need a parameter of at most 50 different values.</source>
        <translation>Nicht geprüft. Anzahlen brauchen einen Parameter mit höchstens 50 verschiedenen Werten.</translation>
    </message>
    <message>
        <source>Not tested. There are too few parameter sets with as many runs: no p below 0.05 exists.</source>
        <translation>Nicht geprüft. Es gibt zu wenige Parametersätze mit gleich vielen Läufen: Kein p unter 0.05 ist möglich.</translation>
    </message>
    <message>
        <source>Not tested. Values change within a run: the test needs one value for every run.</source>
        <translation>Nicht geprüft. Werte ändern sich innerhalb eines Laufs: Der Test braucht einen Wert für jeden Lauf.</translation>
    </message>
    <message>
        <source>The test is under way.</source>
        <translation>Der Test läuft.</translation>
    </message>
    <message>
        <source>Not tested. It does not differ in the first half.</source>
        <translation>Nicht geprüft. In der ersten Hälfte unterscheidet er sich nicht.</translation>
    </message>
    <message>
        <source>%1 sets of %2 runs</source>
        <translation>%1 Sätze von %2 Läufen</translation>
    </message>
    <message>
        <source>%1 sets of %2 to %3 runs</source>
        <translation>%1 Sätze von %2 bis %3 Läufen</translation>
    </message>
    <message>
        <source>%1 base samples of %2 runs</source>
        <translation>%1 Grundstichproben von %2 Läufen</translation>
    </message>
    <message>
        <source>%1 base samples of %2 to %3 runs</source>
        <translation>%1 Grundstichproben von %2 bis %3 Läufen</translation>
    </message>
    <message>
        <source>%1 runs</source>
        <translation>%1 Läufe</translation>
    </message>
    <message>
        <source>Independent: %1.</source>
        <translation>Unabhängig: %1.</translation>
    </message>
    <message>
        <source>%1 permutations, seed %2.</source>
        <translation>%1 Vertauschungen, Startwert %2.</translation>
    </message>
    <message>
        <source>adjusted p %1</source>
        <comment>a number behind =, or an unequal sign and a number</comment>
        <translation>berichtigtes p %1</translation>
    </message>
    <message>
        <source>%1 compared with %2.</source>
        <comment>two groups of runs</comment>
        <translation>%1 verglichen mit: %2.</translation>
    </message>
    <message>
        <source>The present selection</source>
        <translation>Die jetzige Auswahl</translation>
    </message>
    <message>
        <source>the others</source>
        <translation>die übrigen</translation>
    </message>
    <message>
        <source>Runs in both, which count for neither: %1.</source>
        <translation>Läufe in beiden, die für keine zählen: %1.</translation>
    </message>
    <message>
        <source>Tested is one half, drawn at random (seed %1): what differs in the other half. The same words select the runs in both.</source>
        <translation>Geprüft wird eine zufällige Hälfte (Startwert %1): was sich in der anderen Hälfte unterscheidet. In beiden wählen dieselben Worte die Läufe aus.</translation>
    </message>
    <message>
        <source>Tested is one half, drawn at random (seed %1): what differs in the other half. No words select the runs, so the selection itself was split.</source>
        <translation>Geprüft wird eine zufällige Hälfte (Startwert %1): was sich in der anderen Hälfte unterscheidet. Keine Worte wählen die Läufe aus, daher wurde die Auswahl selbst geteilt.</translation>
    </message>
    <message>
        <source>%1 groups of %2 runs that share values</source>
        <translation>%1 Gruppen von %2 Läufen mit gemeinsamen Werten</translation>
    </message>
    <message>
        <source>%1 groups of %2 to %3 runs that share values</source>
        <translation>%1 Gruppen von %2 bis %3 Läufen mit gemeinsamen Werten</translation>
    </message>
    <message>
        <source>%1 has no runs.</source>
        <translation>%1 hat keine Läufe.</translation>
    </message>
    <message>
        <source>This table has no parameters to compare.</source>
        <translation>Diese Tabelle hat keine Parameter zum Vergleichen.</translation>
    </message>
    <message>
        <source>Nothing is selected. Drag a rectangle over some runs with the right mouse button to compare their parameters with those of the other runs.</source>
        <translation>Nichts ist ausgewählt. Ziehen Sie mit der rechten Maustaste ein Rechteck über einige Läufe, um ihre Parameter mit denen der übrigen zu vergleichen.</translation>
    </message>
    <message>
        <source>All runs are selected; there are none to compare them with.</source>
        <translation>Alle Läufe sind ausgewählt; es bleiben keine zum Vergleichen.</translation>
    </message>
    <message>
        <source>%1 has all runs; there are none to compare them with.</source>
        <translation>%1 hat alle Läufe; es bleiben keine zum Vergleichen.</translation>
    </message>
    <message>
        <source>Runs that are in both selections count for neither, and without them there is nothing to compare.</source>
        <translation>Läufe, die in beiden Auswahlen sind, zählen für keine, und ohne sie gibt es nichts zu vergleichen.</translation>
    </message>
    <message>
        <source>p-values found after looking are exploratory; selections looked at so far: %1; check in halves.</source>
        <translation>Nach dem Hinsehen gefundene p-Werte sind Erkundung; bisher betrachtete Auswahlen: %1; prüfen Sie in Hälften.</translation>
    </message>
    <message>
        <source>larger in %1</source>
        <translation>größer in %1</translation>
    </message>
    <message>
        <source>smaller in %1</source>
        <translation>kleiner in %1</translation>
    </message>
    <message>
        <source>chosen by this parameter</source>
        <translation>hiernach gewählt</translation>
    </message>
    <message>
        <source>number of a replicate</source>
        <translation>Nummer eines Replikats</translation>
    </message>
    <message>
        <source>Not tested. The test was cancelled; another selection, test or seed starts it again.</source>
        <translation>Nicht getestet. Der Test wurde abgebrochen; eine andere Auswahl, ein anderer Test oder Startwert beginnt ihn von neuem.</translation>
    </message>
    <message>
        <source>Not tested. By its name it tells replicates apart: without it, runs have equal parameters and are compared as sets.</source>
        <translation>Nicht getestet. Dem Namen nach unterscheidet er Replikate: ohne ihn haben Läufe gleiche Parameter und werden als Sätze verglichen.</translation>
    </message>
    <message>
        <source>The runs are no Saltelli design of so many parameters, which has k + 2 or 2 k + 2 runs for each base sample.</source>
        <translation>Die Läufe sind kein Saltelli-Plan von so vielen Parametern, der k + 2 oder 2 k + 2 Läufe je Grundstichprobe hat.</translation>
    </message>
    <message>
        <source>%1 more often</source>
        <comment>a text of a category</comment>
        <translation>%1 häufiger</translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>Table (*.csv)</source>
        <translation>Tabelle (*.csv)</translation>
    </message>
</context>
<context>
    <name>FileFormats</name>
    <message>
        <source>this is a file of %1, which is not read; %2</source>
        <translation>dies ist eine Datei von %1, die nicht gelesen wird; %2</translation>
    </message>
</context>
<context>
    <name>FileJoin</name>
    <message>
        <source>each of the %1 files holds an item, whose columns are runs</source>
        <translation>jede der %1 Dateien enthält eine Größe, deren Spalten Läufe sind</translation>
    </message>
    <message>
        <source>each of the %1 files holds a run</source>
        <translation>jede der %1 Dateien enthält einen Lauf</translation>
    </message>
    <message>
        <source>%1 and %2 have different columns (%3 is only in one of them); files that are opened together need the same</source>
        <translation>%1 und %2 haben verschiedene Spalten (%3 steht nur in einer von beiden); Dateien, die zusammen geöffnet werden, brauchen dieselben</translation>
    </message>
    <message>
        <source>each file is a run</source>
        <translation>jede Datei ist ein Lauf</translation>
    </message>
    <message>
        <source>each file is an item, and its columns are runs</source>
        <translation>jede Datei ist eine Größe, und ihre Spalten sind Läufe</translation>
    </message>
    <message>
        <source>files and columns are numbered, so that either may be runs: say --files runs or --files items</source>
        <translation>Dateien und Spalten sind nummeriert, beides können Läufe sein: sagen Sie --files runs oder --files items</translation>
    </message>
    <message>
        <source>%1 and %2 have different times; files of one item each need the same. If each file is a run, say --files runs</source>
        <translation>%1 und %2 haben verschiedene Zeiten; Dateien mit je einer Größe brauchen dieselben. Ist jede Datei ein Lauf, sagen Sie --files runs</translation>
    </message>
    <message>
        <source>%1 and %2 have different numbers of rows; files of one item each need the same. If each file is a run, say --files runs</source>
        <translation>%1 und %2 haben verschieden viele Zeilen; Dateien mit je einer Größe brauchen gleich viele. Ist jede Datei ein Lauf, sagen Sie --files runs</translation>
    </message>
    <message>
        <source>each file is an item; rows of the same number are one time</source>
        <translation>jede Datei ist eine Größe; Zeilen mit derselben Nummer sind eine Zeit</translation>
    </message>
    <message>
        <source>the files have no times, so that only the order of their rows could join them: say --files items to do so, or --files runs where each is a run</source>
        <translation>die Dateien haben keine Zeiten, so dass sie nur die Reihenfolge ihrer Zeilen verbinden könnte: sagen Sie dafür --files items, oder --files runs, wenn jede ein Lauf ist</translation>
    </message>
</context>
<context>
    <name>FileWriter</name>
    <message>
        <source>not all of it could be written</source>
        <translation>nicht alles konnte geschrieben werden</translation>
    </message>
    <message>
        <source>no program reads from this pipe</source>
        <translation>kein Programm liest aus dieser Pipe</translation>
    </message>
    <message>
        <source>the reader of this pipe takes no more</source>
        <translation>der Leser dieser Pipe nimmt nichts mehr an</translation>
    </message>
</context>
<context>
    <name>ForeignFormats</name>
    <message>
        <source>save it as .xlsx, .ods or CSV</source>
        <translation>speichern Sie sie als .xlsx, .ods oder CSV</translation>
    </message>
    <message>
        <source>save the table as CSV, HDF5 or .npz</source>
        <translation>speichern Sie die Tabelle als CSV, HDF5 oder .npz</translation>
    </message>
    <message>
        <source>save the table with write.csv()</source>
        <translation>speichern Sie die Tabelle mit write.csv()</translation>
    </message>
    <message>
        <source>save it with the option -v7.3, or the table as CSV</source>
        <translation>speichern Sie sie mit der Option -v7.3, oder die Tabelle als CSV</translation>
    </message>
    <message>
        <source>convert it to netCDF-4, or save the table as CSV</source>
        <translation>wandeln Sie sie in netCDF-4 um, oder speichern Sie die Tabelle als CSV</translation>
    </message>
    <message>
        <source>unpack it, or compress it with gzip</source>
        <translation>entpacken Sie sie, oder komprimieren Sie sie mit gzip</translation>
    </message>
</context>
<context>
    <name>GestureSelection</name>
    <message>
        <source>Run %1, %2: %3, %4</source>
        <translation>Lauf %1, %2: %3, %4</translation>
    </message>
    <message>
        <source>Run %1</source>
        <translation>Lauf %1</translation>
    </message>
</context>
<context>
    <name>GroupController</name>
    <message>
        <source>Group %1: %2 run</source>
        <translation>Gruppe %1: %2 Lauf</translation>
    </message>
    <message>
        <source>Group %1: %2 runs</source>
        <translation>Gruppe %1: %2 Läufe</translation>
    </message>
</context>
<context>
    <name>GzipText</name>
    <message>
        <source>the compressed file is damaged; copy it again</source>
        <translation>die komprimierte Datei ist beschädigt; kopieren Sie sie noch einmal</translation>
    </message>
    <message>
        <source>%1 is compressed in it; unpack it with gunzip, and open that</source>
        <translation>sie enthält komprimiert %1; entpacken Sie sie mit gunzip, und öffnen Sie das</translation>
    </message>
    <message>
        <source>the compressed file is cut short; copy it again</source>
        <translation>die komprimierte Datei ist abgeschnitten; kopieren Sie sie noch einmal</translation>
    </message>
</context>
<context>
    <name>Hdf5File</name>
    <message>
        <source>it holds no %1; at its top are %2</source>
        <translation>die Datei enthält kein %1; ganz oben sind %2</translation>
    </message>
    <message>
        <source>its groups hold each other; name a data set with --sheet</source>
        <translation>ihre Gruppen enthalten einander; nennen Sie einen Datensatz mit --sheet</translation>
    </message>
    <message>
        <source>it holds no data set</source>
        <translation>die Datei enthält keinen Datensatz</translation>
    </message>
    <message>
        <source>it holds several groups (%1); name one with --sheet</source>
        <translation>die Datei enthält mehrere Gruppen (%1); nennen Sie eine mit --sheet</translation>
    </message>
</context>
<context>
    <name>Hdf5Frames</name>
    <message>
        <source>The names of columns are Python objects, which are not read; to_hdf() with data_columns=True writes them as text.</source>
        <translation>Die Namen der Spalten sind Python-Objekte, die nicht gelesen werden; to_hdf() mit data_columns=True schreibt sie als Text.</translation>
    </message>
    <message>
        <source>The column %1 holds Python objects and is left out.</source>
        <translation>Die Spalte %1 enthält Python-Objekte und ist weggelassen.</translation>
    </message>
    <message>
        <source>the table does not fit into memory</source>
        <translation>die Tabelle passt nicht in den Speicher</translation>
    </message>
</context>
<context>
    <name>Hdf5Object</name>
    <message>
        <source>the HDF5 file is damaged, or packed in a way that is not installed here; copy it again, or repack it with h5repack</source>
        <translation>die HDF5-Datei ist beschädigt, oder auf eine Weise gepackt, die hier nicht installiert ist; kopieren Sie sie noch einmal, oder packen Sie sie mit h5repack um</translation>
    </message>
</context>
<context>
    <name>Hdf5Records</name>
    <message>
        <source>it holds more than %1 columns</source>
        <translation>sie enthält mehr als %1 Spalten</translation>
    </message>
</context>
<context>
    <name>Hdf5Runs</name>
    <message>
        <source>The group %1 is left out: %2.</source>
        <translation>Die Gruppe %1 ist weggelassen: %2.</translation>
    </message>
    <message>
        <source>the table does not fit into memory</source>
        <translation>die Tabelle passt nicht in den Speicher</translation>
    </message>
</context>
<context>
    <name>Hdf5Source</name>
    <message>
        <source>its values lie in other files, which are not read; copy them into one file</source>
        <translation>ihre Werte liegen in anderen Dateien, die nicht gelesen werden; kopieren Sie sie in eine Datei</translation>
    </message>
</context>
<context>
    <name>HeaderSearch</name>
    <message>
        <source>the line below the names holds units</source>
        <translation>die Zeile unter den Namen enthält Einheiten</translation>
    </message>
    <message>
        <source>two lines hold the names of the columns</source>
        <translation>zwei Zeilen enthalten die Namen der Spalten</translation>
    </message>
    <message>
        <source>the header is one name short, so the first column names the rows</source>
        <translation>den Überschriften fehlt ein Name, also benennt die erste Spalte die Zeilen</translation>
    </message>
    <message>
        <source>a comment above the rows names the columns</source>
        <translation>ein Kommentar über den Zeilen benennt die Spalten</translation>
    </message>
    <message>
        <source>Line %1 stands above the table and is not read.</source>
        <translation>Zeile %1 steht über der Tabelle und wird nicht gelesen.</translation>
    </message>
    <message>
        <source>The lines %1 to %2 stand above the table and are not read.</source>
        <translation>Die Zeilen %1 bis %2 stehen über der Tabelle und werden nicht gelesen.</translation>
    </message>
</context>
<context>
    <name>ImportSummary</name>
    <message>
        <source>%1 to %2 points</source>
        <translation>%1 bis %2 Punkten</translation>
    </message>
    <message>
        <source>%1 point</source>
        <translation>%1 Punkt</translation>
    </message>
    <message>
        <source>%1 points</source>
        <translation>%1 Punkten</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 run</source>
        <translation>%1 Lauf</translation>
    </message>
    <message>
        <source>%1 runs</source>
        <translation>%1 Läufe</translation>
    </message>
    <message>
        <source>%1 row</source>
        <translation>%1 Zeile</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 Zeilen</translation>
    </message>
    <message>
        <source>%1 parameter</source>
        <translation>%1 Parameter</translation>
    </message>
    <message>
        <source>%1 parameters</source>
        <translation>%1 Parameter</translation>
    </message>
    <message>
        <source>%1 item</source>
        <translation>%1 Größe</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 Größen</translation>
    </message>
    <message>
        <source>%1 condition</source>
        <translation>%1 Bedingung</translation>
    </message>
    <message>
        <source>%1 conditions</source>
        <translation>%1 Bedingungen</translation>
    </message>
    <message>
        <source>\blines? (\d+)</source>
        <translation>\bZeilen? (\d+)</translation>
    </message>
</context>
<context>
    <name>LayoutChoice</name>
    <message>
        <source>there is no layout %1; the layouts are %2</source>
        <translation>es gibt keinen Aufbau %1; es gibt %2</translation>
    </message>
    <message>
        <source>the layout is %1, as was asked for</source>
        <translation>der Aufbau ist %1, wie verlangt</translation>
    </message>
    <message>
        <source>the layout is %1: %2</source>
        <translation>der Aufbau ist %1: %2</translation>
    </message>
    <message>
        <source>it is not clear how the table is laid out. Say %1</source>
        <translation>es ist nicht klar, wie die Tabelle aufgebaut ist. Bitte angeben: %1</translation>
    </message>
</context>
<context>
    <name>LevelBars</name>
    <message>
        <source>Share</source>
        <translation>Anteil</translation>
    </message>
</context>
<context>
    <name>LinePlotWidgetClass</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>&lt;!DOCTYPE HTML PUBLIC &quot;-//W3C//DTD HTML 4.0//EN&quot; &quot;http://www.w3.org/TR/REC-html40/strict.dtd&quot;&gt;
&lt;html&gt;&lt;head&gt;&lt;meta name=&quot;qrichtext&quot; content=&quot;1&quot; /&gt;&lt;style type=&quot;text/css&quot;&gt;
p, li { white-space: pre-wrap; }
&lt;/style&gt;&lt;/head&gt;&lt;body style=&quot; font-family:&apos;Sans Serif&apos;; font-size:9pt; font-weight:400; font-style:normal;&quot;&gt;
&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:24pt;&quot;&gt;Simulation data not available&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;!DOCTYPE HTML PUBLIC &quot;-//W3C//DTD HTML 4.0//EN&quot; &quot;http://www.w3.org/TR/REC-html40/strict.dtd&quot;&gt;
&lt;html&gt;&lt;head&gt;&lt;meta name=&quot;qrichtext&quot; content=&quot;1&quot; /&gt;&lt;style type=&quot;text/css&quot;&gt;
p, li { white-space: pre-wrap; }
&lt;/style&gt;&lt;/head&gt;&lt;body style=&quot; font-family:&apos;Sans Serif&apos;; font-size:9pt; font-weight:400; font-style:normal;&quot;&gt;
&lt;p align=&quot;center&quot;&gt;&lt;span style=&quot; font-size:24pt;&quot;&gt;Keine Simulationsdaten vorhanden&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Export Plot</source>
        <translation>Daten exportieren</translation>
    </message>
    <message>
        <source>Hide the Legend</source>
        <translation>Legende ausblenden</translation>
    </message>
    <message>
        <source>Use Linear Scale</source>
        <translation>Lineare Skala</translation>
    </message>
    <message>
        <source>Show the Legend</source>
        <translation>Legende einblenden</translation>
    </message>
    <message>
        <source>Use Log Scale</source>
        <translation>Logarithmische Skala</translation>
    </message>
    <message>
        <source>Linear scale: a logarithmic one needs positive values</source>
        <translation>Lineare Skala: eine logarithmische braucht positive Werte</translation>
    </message>
    <message>
        <source>Save Plot data as</source>
        <translation>Daten speichern unter</translation>
    </message>
    <message>
        <source>CSV(*.csv)</source>
        <translation>CSV(*.csv)</translation>
    </message>
    <message>
        <source>The table could not be written to %1.</source>
        <translation>Die Tabelle konnte nicht nach %1 geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>ListedRuns</name>
    <message>
        <source>%1: none of its runs is in this table: %2</source>
        <translation>%1: keiner der Läufe steht in dieser Tabelle: %2</translation>
    </message>
    <message>
        <source>%1: 1 of its %3 runs is not in this table: %2</source>
        <translation>%1: 1 der %3 Läufe steht nicht in dieser Tabelle: %2</translation>
    </message>
    <message>
        <source>%1: %4 of its %3 runs are not in this table: %2</source>
        <translation>%1: %4 der %3 Läufe stehen nicht in dieser Tabelle: %2</translation>
    </message>
</context>
<context>
    <name>LongTable</name>
    <message>
        <source>line %1: a second value of %2 at the same time. Name the columns that tell the runs apart (--run)</source>
        <translation>Zeile %1: ein zweiter Wert von %2 zur selben Zeit. Bitte die Spalten nennen, die die Läufe unterscheiden (--run)</translation>
    </message>
    <message>
        <source>%1 rows without an item or a time are left out.</source>
        <translation>%1 Zeilen ohne Größe oder Zeit werden ausgelassen.</translation>
    </message>
    <message>
        <source>no row has an item and a time</source>
        <translation>keine Zeile hat eine Größe und eine Zeit</translation>
    </message>
    <message>
        <source>%1 items at %2 points, most of them without a value, are too many; name the item column (--item) if it is another one</source>
        <translation>%1 Größen an %2 Punkten, meist ohne Wert, sind zu viele; falls eine andere Spalte die Größen nennt, bitte angeben (--item)</translation>
    </message>
    <message>
        <source>the column %1 tells how exact the values are, which is not shown</source>
        <translation>die Spalte %1 sagt, wie genau die Werte sind, was nicht gezeigt wird</translation>
    </message>
    <message>
        <source>the column %1 differs between the items of a point and is left out</source>
        <translation>die Spalte %1 unterscheidet sich zwischen den Größen eines Punktes und wird ausgelassen</translation>
    </message>
</context>
<context>
    <name>NpyHeader</name>
    <message>
        <source>the header of the NumPy array is damaged; save it again</source>
        <translation>der Kopf des NumPy-Felds ist beschädigt; speichern Sie es noch einmal</translation>
    </message>
    <message>
        <source>values of the NumPy type %1 are not read; save them with .astype(float)</source>
        <translation>Werte des NumPy-Typs %1 werden nicht gelesen; speichern Sie sie mit .astype(float)</translation>
    </message>
    <message>
        <source>the array holds Python objects, which may run programs and are not read; save it as numbers or text</source>
        <translation>das Feld enthält Python-Objekte, die Programme ausführen können und nicht gelesen werden; speichern Sie es als Zahlen oder Text</translation>
    </message>
    <message>
        <source>the field %1 has fields of its own, which are not read; save each as an array</source>
        <translation>das Feld %1 hat selbst Felder, die nicht gelesen werden; speichern Sie jedes für sich</translation>
    </message>
</context>
<context>
    <name>NumpyFiles</name>
    <message>
        <source>the array is cut short; save or copy it again</source>
        <translation>das Feld ist abgeschnitten; speichern oder kopieren Sie es noch einmal</translation>
    </message>
    <message>
        <source>the array holds bytes without a meaning; save it as numbers</source>
        <translation>das Feld enthält Bytes ohne Bedeutung; speichern Sie es als Zahlen</translation>
    </message>
    <message>
        <source>The array %1 is left out: %2.</source>
        <translation>Das Feld %1 ist weggelassen: %2.</translation>
    </message>
</context>
<context>
    <name>OrderSearch</name>
    <message>
        <source>the numbers of %1 rise from row to row, so they are the time</source>
        <translation>die Zahlen von %1 steigen von Zeile zu Zeile und sind daher die Zeit</translation>
    </message>
    <message>
        <source>%1 parts the rows into runs over time</source>
        <translation>%1 teilt die Zeilen in Läufe über die Zeit</translation>
    </message>
</context>
<context>
    <name>PaintingMemory</name>
    <message>
        <source>there is not enough memory for this picture</source>
        <translation>für dieses Bild ist nicht genug Speicher da</translation>
    </message>
</context>
<context>
    <name>ParameterJoin</name>
    <message>
        <source>the table of parameters %1 has no row for %2</source>
        <translation>die Tabelle der Parameter %1 hat keine Zeile für %2</translation>
    </message>
    <message>
        <source>the rows of the table stand in the order of the files</source>
        <translation>die Zeilen der Tabelle stehen in der Reihenfolge der Dateien</translation>
    </message>
    <message>
        <source>a column names the files, and is still to be added</source>
        <translation>eine Spalte benennt die Dateien und ist noch zu ergänzen</translation>
    </message>
    <message>
        <source>no column of the table of parameters %1 names the files or runs (such as %2): add one for --join name, or say --join order to join by the order of rows</source>
        <translation>keine Spalte der Tabelle der Parameter %1 benennt die Dateien oder Läufe (etwa %2): ergänzen Sie eine für --join name, oder sagen Sie --join order für die Reihenfolge der Zeilen</translation>
    </message>
    <message>
        <source>the column %1 of %2 names the runs</source>
        <translation>die Spalte %1 von %2 benennt die Läufe</translation>
    </message>
</context>
<context>
    <name>PartNames</name>
    <message>
        <source>it holds no %1; it holds %2</source>
        <translation>sie enthält kein %1; sie enthält %2</translation>
    </message>
</context>
<context>
    <name>PetabConditions</name>
    <message>
        <source>names of parameters in %1 stand for their nominal values</source>
        <translation>Namen von Parametern in %1 stehen für deren Nominalwerte</translation>
    </message>
    <message>
        <source>there is no %1 beside the table, so conditions are names only</source>
        <translation>neben der Tabelle liegt keine %1, also sind Bedingungen nur Namen</translation>
    </message>
    <message>
        <source>%1 beside the table says what the conditions are</source>
        <translation>%1 neben der Tabelle sagt, was die Bedingungen sind</translation>
    </message>
    <message>
        <source>The condition %1 does not stand in %2, so nothing more is known of it.</source>
        <translation>Die Bedingung %1 steht nicht in %2, daher ist nicht mehr von ihr bekannt.</translation>
    </message>
</context>
<context>
    <name>PetabLayout</name>
    <message>
        <source>the columns are those of a PEtab table of measurements or simulations</source>
        <translation>die Spalten sind die einer PEtab-Tabelle von Messungen oder Simulationen</translation>
    </message>
    <message>
        <source>a PEtab table has the columns observableId, simulationConditionId, time, and measurement or simulation</source>
        <translation>eine PEtab-Tabelle hat die Spalten observableId, simulationConditionId, time und measurement oder simulation</translation>
    </message>
    <message>
        <source>the values are measurements: nothing is drawn between them</source>
        <translation>die Werte sind Messungen: Dazwischen wird nichts gezeichnet</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>the plot could not be painted</source>
        <translation>die Grafik konnte nicht gezeichnet werden</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Vector picture</source>
        <translation>Vektorgrafik</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 oder %2</translation>
    </message>
    <message>
        <source>the name must end with %1</source>
        <translation>der Name muss auf %1 enden</translation>
    </message>
    <message>
        <source>a side on paper must have from %1 to %2 millimetres</source>
        <translation>eine Seite auf dem Papier muss %1 bis %2 Millimeter haben</translation>
    </message>
    <message>
        <source>the resolution must be from %1 to %2 dpi</source>
        <translation>die Auflösung muss %1 bis %2 dpi sein</translation>
    </message>
    <message>
        <source>%1 x %2 pixels are too many: a side may have %3</source>
        <translation>%1 x %2 Bildpunkte sind zu viele: eine Seite darf %3 haben</translation>
    </message>
</context>
<context>
    <name>PlainLayout</name>
    <message>
        <source>there is neither a time nor a run</source>
        <translation>es gibt weder eine Zeit noch einen Lauf</translation>
    </message>
</context>
<context>
    <name>PlainText</name>
    <message>
        <source>cannot be read: %1</source>
        <translation>kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>es gibt keine solche Datei</translation>
    </message>
    <message>
        <source>this is not a file</source>
        <translation>dies ist keine Datei</translation>
    </message>
</context>
<context>
    <name>PlotChoice</name>
    <message>
        <source>cannot draw this: %1</source>
        <translation>das lässt sich nicht zeichnen: %1</translation>
    </message>
    <message>
        <source>no such column: %1; the columns are %2</source>
        <translation>keine solche Spalte: %1; die Spalten sind %2</translation>
    </message>
    <message>
        <source>more than one column is named %1: %2 and %3</source>
        <translation>mehr als eine Spalte heißt %1: %2 und %3</translation>
    </message>
    <message>
        <source>No y column is ticked: nothing to show over x</source>
        <translation>Keine Y-Spalte ist angekreuzt: über x gibt es nichts zu zeigen</translation>
    </message>
    <message>
        <source>Linear scale: a logarithmic one needs positive values</source>
        <translation>Lineare Skala: eine logarithmische braucht positive Werte</translation>
    </message>
    <message>
        <source>%1 has no single value for a run: not shown</source>
        <translation>%1 hat keinen einzelnen Wert je Lauf: nicht gezeigt</translation>
    </message>
    <message>
        <source>%1 is one value for a run: shown only over parameters and other such values</source>
        <translation>%1 ist ein Wert je Lauf: nur über Parametern und anderen solchen Werten zu sehen</translation>
    </message>
</context>
<context>
    <name>PlotSelector</name>
    <message>
        <source>Select Items to View</source>
        <translation>Angezeigte Größen wählen</translation>
    </message>
</context>
<context>
    <name>ReadingQuestion</name>
    <message>
        <source>Decimal commas</source>
        <translation>Dezimalkommas</translation>
    </message>
    <message>
        <source>Runs one below the other</source>
        <translation>Läufe untereinander</translation>
    </message>
    <message>
        <source>A value per row</source>
        <translation>Ein Wert je Zeile</translation>
    </message>
    <message>
        <source>A column per run</source>
        <translation>Eine Spalte je Lauf</translation>
    </message>
    <message>
        <source>A row per run</source>
        <translation>Eine Zeile je Lauf</translation>
    </message>
    <message>
        <source>A table without runs</source>
        <translation>Eine Tabelle ohne Läufe</translation>
    </message>
    <message>
        <source>How is the table %1 to be read?</source>
        <translation>Wie ist die Tabelle %1 zu lesen?</translation>
    </message>
    <message>
        <source>A file per run</source>
        <translation>Eine Datei je Lauf</translation>
    </message>
    <message>
        <source>A file per item</source>
        <translation>Eine Datei je Größe</translation>
    </message>
    <message>
        <source>In the order of rows</source>
        <translation>In der Reihenfolge der Zeilen</translation>
    </message>
    <message>
        <source>Choose how to read it...</source>
        <translation>Auswählen, wie sie gelesen wird …</translation>
    </message>
</context>
<context>
    <name>RoleChoice</name>
    <message>
        <source>there is no column %1; the columns are %2</source>
        <translation>es gibt keine Spalte %1; die Spalten sind %2</translation>
    </message>
    <message>
        <source>line %1: %2 in the column %3 has commas between thousands; write the numbers without them</source>
        <translation>Zeile %1: %2 in der Spalte %3 hat Trennzeichen zwischen Tausendern; bitte die Zahlen ohne sie schreiben</translation>
    </message>
    <message>
        <source>line %1: %2 in the column %3 is a date whose day and month could be taken for each other; write it as 2024-03-31</source>
        <translation>Zeile %1: %2 in der Spalte %3 ist ein Datum, dessen Tag und Monat verwechselt werden könnten; schreiben Sie es wie 2024-03-31</translation>
    </message>
    <message>
        <source>line %1: %2 in the column %3 has a percent sign; write the numbers without it</source>
        <translation>Zeile %1: %2 in der Spalte %3 hat ein Prozentzeichen; schreiben Sie die Zahlen ohne es</translation>
    </message>
    <message>
        <source>line %1: %2 in the column %3 has marks or blanks between thousands; write the numbers without them</source>
        <translation>Zeile %1: %2 in der Spalte %3 hat Zeichen oder Leerzeichen zwischen den Tausendern; schreiben Sie die Zahlen ohne sie</translation>
    </message>
    <message>
        <source>the column %1 cannot be the time and name the runs</source>
        <translation>die Spalte %1 kann nicht die Zeit sein und zugleich die Läufe benennen</translation>
    </message>
</context>
<context>
    <name>RowsLayout</name>
    <message>
        <source>every row names a run of its own, and there is no time</source>
        <translation>jede Zeile benennt einen eigenen Lauf, und es gibt keine Zeit</translation>
    </message>
    <message>
        <source>there are parameters and no time</source>
        <translation>es gibt Parameter und keine Zeit</translation>
    </message>
    <message>
        <source>columns are called as samplers and fits call them, and there is no time</source>
        <translation>Spalten heißen wie bei Stichproben und Anpassungen, und es gibt keine Zeit</translation>
    </message>
    <message>
        <source>most columns are called as parameters are, and there is no time</source>
        <translation>die meisten Spalten heißen wie Parameter, und es gibt keine Zeit</translation>
    </message>
    <message>
        <source>a column is called as parameters are, and there is no time: a row may be a run</source>
        <translation>eine Spalte heißt wie ein Parameter, und es gibt keine Zeit: Eine Zeile kann ein Lauf sein</translation>
    </message>
    <message>
        <source>a file of this kind holds a scan of its first column</source>
        <translation>eine Datei dieser Art enthält einen Scan über ihre erste Spalte</translation>
    </message>
</context>
<context>
    <name>RunArrays</name>
    <message>
        <source>Nothing tells the times; the points are counted.</source>
        <translation>Nichts nennt die Zeiten; die Punkte sind gezählt.</translation>
    </message>
    <message>
        <source>%1 has times for %2 runs and points, the data for %3</source>
        <translation>%1 hat Zeiten für %2 Läufe und Punkte, die Daten für %3</translation>
    </message>
    <message>
        <source>Parameter %1</source>
        <translation>Parameter %1</translation>
    </message>
    <message>
        <source>the table does not fit into memory</source>
        <translation>die Tabelle passt nicht in den Speicher</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>%1 has %2 columns; at most %3 can be read</source>
        <translation>%1 hat %2 Spalten; höchstens %3 können gelesen werden</translation>
    </message>
    <message>
        <source>Nothing names the axes of %1; they are taken for runs, times and items.</source>
        <translation>Nichts benennt die Achsen von %1; sie gelten als Läufe, Zeiten und Größen.</translation>
    </message>
    <message>
        <source>it holds more than %1 columns</source>
        <translation>sie enthält mehr als %1 Spalten</translation>
    </message>
    <message>
        <source>What does not fit the table is left out: %1; --sheet chooses another one.</source>
        <translation>Was nicht zur Tabelle passt, ist weggelassen: %1; --sheet wählt anderes.</translation>
    </message>
</context>
<context>
    <name>RunColumnMenu</name>
    <message>
        <source>Parameters</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Smallest value</source>
        <translation>Kleinster Wert</translation>
    </message>
    <message>
        <source>Largest value</source>
        <translation>Größter Wert</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>Erster Wert</translation>
    </message>
    <message>
        <source>Final value</source>
        <translation>Letzter Wert</translation>
    </message>
    <message>
        <source>Number of peaks</source>
        <translation>Anzahl der Gipfel</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Periode</translation>
    </message>
</context>
<context>
    <name>RunFiles</name>
    <message>
        <source>a session is opened alone</source>
        <translation>eine Sitzung wird allein geöffnet</translation>
    </message>
    <message>
        <source>it holds no columns</source>
        <translation>sie enthält keine Spalten</translation>
    </message>
    <message>
        <source>%1 files are too many; at most %2 can be read together</source>
        <translation>%1 Dateien sind zu viele; höchstens %2 können zusammen gelesen werden</translation>
    </message>
    <message>
        <source>there are no files of runs</source>
        <translation>es gibt keine Dateien mit Läufen</translation>
    </message>
</context>
<context>
    <name>RunFilter</name>
    <message>
        <source>a condition is wanted here, such as &quot;max(A) &gt; 1&quot;</source>
        <translation>hier wird eine Bedingung gebraucht, etwa &quot;max(A) &gt; 1&quot;</translation>
    </message>
    <message>
        <source>a number is wanted here, not a condition</source>
        <translation>hier wird eine Zahl gebraucht, keine Bedingung</translation>
    </message>
    <message>
        <source>&quot;over&quot; joins two items of a line, as in &quot;through(B over A, 0, 1, 2, 3)&quot;</source>
        <translation>&quot;over&quot; verbindet zwei Größen einer Linie, etwa in &quot;through(B over A, 0, 1, 2, 3)&quot;</translation>
    </message>
    <message>
        <source>the name of an item is wanted here</source>
        <translation>hier wird der Name einer Größe gebraucht</translation>
    </message>
    <message>
        <source>%1 changes during a run: say max(%1), final(%1) or another number of it</source>
        <translation>%1 ändert sich während eines Laufs: max(%1), final(%1) oder eine andere Zahl davon</translation>
    </message>
    <message>
        <source>%1 takes an item and three or more points, each a time and a value</source>
        <translation>%1 verlangt eine Größe und mindestens drei Punkte, je eine Zeit und ein Wert</translation>
    </message>
    <message>
        <source>%1 takes one or more numbers</source>
        <translation>%1 verlangt eine oder mehr Zahlen</translation>
    </message>
    <message>
        <source>%1 takes one number</source>
        <translation>%1 verlangt eine Zahl</translation>
    </message>
    <message>
        <source>%1 takes one item and nothing else</source>
        <translation>%1 verlangt eine Größe und sonst nichts</translation>
    </message>
    <message>
        <source>%1 takes an item and one number</source>
        <translation>%1 verlangt eine Größe und eine Zahl</translation>
    </message>
    <message>
        <source>%1 takes an item and %2 numbers</source>
        <translation>%1 verlangt eine Größe und %2 Zahlen</translation>
    </message>
    <message>
        <source>%1 takes an item and at most one number</source>
        <translation>%1 verlangt eine Größe und höchstens eine Zahl</translation>
    </message>
    <message>
        <source>there is no function %1; there are %2</source>
        <translation>es gibt keine Funktion %1; es gibt %2</translation>
    </message>
    <message>
        <source>%1 takes an item: the name of a column</source>
        <translation>%1 verlangt eine Größe: den Namen einer Spalte</translation>
    </message>
    <message>
        <source>%1 looks at one item over time</source>
        <translation>%1 betrachtet eine Größe über der Zeit</translation>
    </message>
    <message>
        <source>&quot;)&quot; is missing here</source>
        <translation>hier fehlt &quot;)&quot;</translation>
    </message>
    <message>
        <source>the closing double quote is missing</source>
        <translation>das schließende Anführungszeichen fehlt</translation>
    </message>
    <message>
        <source>a name or a number is missing here</source>
        <translation>hier fehlt ein Name oder eine Zahl</translation>
    </message>
    <message>
        <source>parentheses are nested too deep here</source>
        <translation>hier sind zu viele Klammern ineinander geschachtelt</translation>
    </message>
    <message>
        <source>an operator is missing here</source>
        <translation>hier fehlt ein Zeichen dazwischen</translation>
    </message>
    <message>
        <source>column %1 does not hold numbers</source>
        <translation>Spalte %1 enthält keine Zahlen</translation>
    </message>
    <message>
        <source>%1: at character %2: %3</source>
        <translation>%1: beim Zeichen %2: %3</translation>
    </message>
    <message>
        <source>This table has no runs to select.</source>
        <translation>Diese Tabelle hat keine Läufe, die sich auswählen ließen.</translation>
    </message>
    <message>
        <source>Select %1 runs</source>
        <translation>%1 Läufe auswählen</translation>
    </message>
    <message>
        <source>Add %1 runs</source>
        <translation>%1 Läufe hinzunehmen</translation>
    </message>
    <message>
        <source>Take away %1 runs</source>
        <translation>%1 Läufe wegnehmen</translation>
    </message>
    <message>
        <source>Toggle %1 runs</source>
        <translation>%1 Läufe umschalten</translation>
    </message>
    <message>
        <source>Select 1 run</source>
        <translation>1 Lauf auswählen</translation>
    </message>
    <message>
        <source>Add 1 run</source>
        <translation>1 Lauf hinzunehmen</translation>
    </message>
    <message>
        <source>Take away 1 run</source>
        <translation>1 Lauf wegnehmen</translation>
    </message>
    <message>
        <source>Toggle 1 run</source>
        <translation>1 Lauf umschalten</translation>
    </message>
    <message>
        <source>%1, too many to name</source>
        <translation>%1, zu viele, um sie zu nennen</translation>
    </message>
    <message>
        <source>Select nothing</source>
        <translation>Nichts auswählen</translation>
    </message>
    <message>
        <source>there is not enough memory for this condition</source>
        <translation>der Speicher reicht für diese Bedingung nicht</translation>
    </message>
    <message>
        <source>this number is too large</source>
        <translation>diese Zahl ist zu groß</translation>
    </message>
</context>
<context>
    <name>RunGrouping</name>
    <message>
        <source>1 point</source>
        <translation>1 Punkt</translation>
    </message>
    <message>
        <source>%1 points</source>
        <translation>%1 Punkte</translation>
    </message>
    <message>
        <source>run %1 has %2, other runs have %3</source>
        <translation>der Lauf %1 hat %2, andere Läufe haben %3</translation>
    </message>
    <message>
        <source>run %1 (from line %2, where time falls back) has %3, other runs have %4</source>
        <translation>der Lauf %1 (ab Zeile %2, wo die Zeit zurückspringt) hat %3, andere Läufe haben %4</translation>
    </message>
    <message>
        <source>run %1 starts again in line %2: two runs have the same name</source>
        <translation>der Lauf %1 beginnt in Zeile %2 von neuem: Zwei Läufe haben denselben Namen</translation>
    </message>
</context>
<context>
    <name>RunSelectionFile</name>
    <message>
        <source>entry %1 of its runs is not a whole number</source>
        <translation>Eintrag %1 der Läufe ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>not a JSON file: %1 at byte %2</source>
        <translation>keine JSON-Datei: %1 bei Byte %2</translation>
    </message>
    <message>
        <source>not a selection of runs</source>
        <translation>keine Auswahl von Läufen</translation>
    </message>
    <message>
        <source>a selection of runs in a version that this program does not know</source>
        <translation>eine Auswahl von Läufen in einer Version, die dieses Programm nicht kennt</translation>
    </message>
    <message>
        <source>a selection without a list of runs</source>
        <translation>eine Auswahl ohne Liste der Läufe</translation>
    </message>
    <message>
        <source>%1: cannot be written: %2</source>
        <translation>%1: kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>not a file</source>
        <translation>keine Datei</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>too large for a selection of runs</source>
        <translation>zu groß für eine Auswahl von Läufen</translation>
    </message>
</context>
<context>
    <name>RunTableImport</name>
    <message>
        <source>line %1: %2 in the column %3 is not a number</source>
        <translation>Zeile %1: %2 in der Spalte %3 ist keine Zahl</translation>
    </message>
    <message>
        <source>not a table: no column holds numbers</source>
        <translation>keine Tabelle: Keine Spalte enthält Zahlen</translation>
    </message>
    <message>
        <source>The parameter %1 is the same in all runs and is left out.</source>
        <translation>Der Parameter %1 ist in allen Läufen gleich und wird ausgelassen.</translation>
    </message>
    <message>
        <source>The first column has no name and counts the rows; it is left out.</source>
        <translation>Die erste Spalte hat keinen Namen und zählt die Zeilen; sie wird ausgelassen.</translation>
    </message>
    <message>
        <source>There is no time column, so the points of a run are in the order of the file.</source>
        <translation>Es gibt keine Zeitspalte, also stehen die Punkte eines Laufs in der Reihenfolge der Datei.</translation>
    </message>
    <message>
        <source>There is no time column, so the rows are not taken for runs.</source>
        <translation>Es gibt keine Zeitspalte, also gelten die Zeilen nicht als Läufe.</translation>
    </message>
    <message>
        <source>The column %1 marks a former selection and is left out.</source>
        <translation>Die Spalte %1 markiert eine frühere Auswahl und wird ausgelassen.</translation>
    </message>
    <message>
        <source>a run starts wherever time falls back, and runs differ in length</source>
        <translation>ein Lauf beginnt, wo die Zeit zurückspringt, und die Läufe sind verschieden lang</translation>
    </message>
    <message>
        <source>the rows have no order</source>
        <translation>die Zeilen haben keine Ordnung</translation>
    </message>
    <message>
        <source>%1. If a run starts wherever time falls back, say --layout stacked; if a column names the runs, --run and its name; if there are none, --layout table</source>
        <translation>%1. Wenn ein Lauf beginnt, wo die Zeit zurückspringt, hilft --layout stacked; wenn eine Spalte die Läufe benennt, --run und ihr Name; wenn es keine Läufe sind, --layout table</translation>
    </message>
    <message>
        <source>. --ignore %1 leaves the column out, --condition %1 takes it for texts</source>
        <translation>. --ignore %1 lässt die Spalte weg, --condition %1 nimmt sie für Texte</translation>
    </message>
    <message>
        <source>The same value stands in all rows of %1.</source>
        <translation>In allen Zeilen von %1 steht derselbe Wert.</translation>
    </message>
    <message>
        <source>Line %1: %2 in the column %3 is not a number, so its numbers are taken for names, too.</source>
        <translation>Zeile %1: %2 in der Spalte %3 ist keine Zahl; deshalb gelten auch ihre Zahlen als Namen.</translation>
    </message>
</context>
<context>
    <name>SelectionHistory</name>
    <message>
        <source>Clear Selection</source>
        <translation>Auswahl aufheben</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
</context>
<context>
    <name>SeparatorVote</name>
    <message>
        <source>%1 part %2 fields in %3 of the lines looked at</source>
        <translation>%1 trennen %2 Felder in %3 der angesehenen Zeilen</translation>
    </message>
    <message>
        <source>nothing parts the lines: one column</source>
        <translation>nichts trennt die Zeilen: eine Spalte</translation>
    </message>
    <message>
        <source>%1 part the fields, as was asked for</source>
        <translation>%1 trennen die Felder, wie verlangt</translation>
    </message>
    <message>
        <source>tabs</source>
        <translation>Tabulatoren</translation>
    </message>
    <message>
        <source>semicolons</source>
        <translation>Semikolons</translation>
    </message>
    <message>
        <source>commas</source>
        <translation>Kommas</translation>
    </message>
    <message>
        <source>bars</source>
        <translation>senkrechte Striche</translation>
    </message>
    <message>
        <source>blanks</source>
        <translation>Leerzeichen</translation>
    </message>
    <message>
        <source>colons</source>
        <translation>Doppelpunkte</translation>
    </message>
</context>
<context>
    <name>SessionFile</name>
    <message>
        <source>%1: the table is too large for a session</source>
        <translation>%1: Die Tabelle ist zu groß für eine Sitzung</translation>
    </message>
    <message>
        <source>this is not a session of Talmesh Plot</source>
        <translation>das ist keine Sitzung von Talmesh Plot</translation>
    </message>
    <message>
        <source>the session is cut short</source>
        <translation>die Sitzung ist unvollständig</translation>
    </message>
    <message>
        <source>the session was written by a newer version of this program</source>
        <translation>die Sitzung stammt von einer neueren Version dieses Programms</translation>
    </message>
    <message>
        <source>the session is damaged</source>
        <translation>die Sitzung ist beschädigt</translation>
    </message>
    <message>
        <source>%1: cannot be written: %2</source>
        <translation>%1: kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>es gibt keine solche Datei</translation>
    </message>
    <message>
        <source>this is not a file</source>
        <translation>das ist keine Datei</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>the session&apos;s settings are damaged</source>
        <translation>die Einstellungen der Sitzung sind beschädigt</translation>
    </message>
    <message>
        <source>the session&apos;s table is damaged</source>
        <translation>die Tabelle der Sitzung ist beschädigt</translation>
    </message>
    <message>
        <source>%1: two columns have the name %2; a session needs a name for each</source>
        <translation>%1: zwei Spalten heißen %2; eine Sitzung braucht für jede einen eigenen Namen</translation>
    </message>
    <message>
        <source>%1: there is not enough memory to save the session</source>
        <translation>%1: der Speicher reicht nicht, um die Sitzung zu speichern</translation>
    </message>
</context>
<context>
    <name>SessionQuestions</name>
    <message>
        <source>the selection</source>
        <translation>die Auswahl</translation>
    </message>
    <message>
        <source>the groups of runs</source>
        <translation>die Gruppen der Läufe</translation>
    </message>
    <message>
        <source>which runs are normalised</source>
        <translation>welche Läufe normiert sind</translation>
    </message>
    <message>
        <source>how the plot is shown</source>
        <translation>wie die Grafik gezeigt wird</translation>
    </message>
    <message>
        <source>Save the work on &quot;%1&quot;?</source>
        <translation>Die Arbeit an „%1“ speichern?</translation>
    </message>
    <message>
        <source>Not saved: %1.</source>
        <translation>Nicht gespeichert: %1.</translation>
    </message>
    <message>
        <source>%1 has changed since this window opened or saved it.</source>
        <translation>%1 hat sich geändert, seit dieses Fenster die Datei geöffnet oder gespeichert hat.</translation>
    </message>
    <message>
        <source>Overwriting it loses what someone else has saved there.</source>
        <translation>Wer sie überschreibt, verliert, was jemand anders dort gespeichert hat.</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>&amp;Überschreiben</translation>
    </message>
    <message>
        <source>&amp;Save under another name...</source>
        <translation>Unter anderem &amp;Namen speichern …</translation>
    </message>
    <message>
        <source>Bring back the unsaved work on &quot;%1&quot;?</source>
        <translation>Die ungespeicherte Arbeit an „%1“ zurückholen?</translation>
    </message>
    <message>
        <source>Talmesh Plot ended before it was saved. It was kept on %1.</source>
        <translation>Talmesh Plot endete, bevor sie gespeichert war. Aufgehoben wurde sie am %1.</translation>
    </message>
    <message>
        <source>&amp;Bring back</source>
        <translation>&amp;Zurückholen</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Später</translation>
    </message>
    <message>
        <source>kept selections</source>
        <translation>gemerkte Auswahlen</translation>
    </message>
</context>
<context>
    <name>SettledColumns</name>
    <message>
        <source>The column %1 counts the rows; it is left out.</source>
        <translation>Die Spalte %1 zählt die Zeilen; sie wird ausgelassen.</translation>
    </message>
    <message>
        <source>The first column holds names of the rows and is left out.</source>
        <translation>Die erste Spalte enthält Namen der Zeilen und wird ausgelassen.</translation>
    </message>
    <message>
        <source>The column %1 holds more than %2 different texts and is left out.</source>
        <translation>Die Spalte %1 enthält mehr als %2 verschiedene Texte und wird ausgelassen.</translation>
    </message>
    <message>
        <source>Line %1: %2 in the column %3 is beyond what could be measured, and counts as missing (%4 in all).</source>
        <translation>Zeile %1: %2 in der Spalte %3 liegt jenseits des Messbaren und gilt als fehlend (insgesamt %4).</translation>
    </message>
    <message>
        <source>the dates of %1 are days since the first of them</source>
        <translation>die Daten von %1 sind Tage seit dem ersten</translation>
    </message>
    <message>
        <source>the times of %1 are seconds since the first of them</source>
        <translation>die Zeiten von %1 sind Sekunden seit der ersten</translation>
    </message>
</context>
<context>
    <name>SheetText</name>
    <message>
        <source>The sheet %1 is shown; --sheet chooses another one: %2.</source>
        <translation>Das Blatt %1 ist gezeigt; --sheet wählt ein anderes: %2.</translation>
    </message>
    <message>
        <source>none of its sheets (%1) is a table: a table has a row of names and rows of numbers below</source>
        <translation>keins ihrer Blätter (%1) ist eine Tabelle: eine Tabelle hat eine Zeile mit Namen und darunter Zeilen mit Zahlen</translation>
    </message>
    <message>
        <source>the sheet is mostly blank cells; copy the table into a sheet of its own</source>
        <translation>das Blatt besteht fast nur aus leeren Zellen; kopieren Sie die Tabelle in ein eigenes Blatt</translation>
    </message>
    <message>
        <source>the workbook is damaged; save it again, or as CSV</source>
        <translation>die Arbeitsmappe ist beschädigt; speichern Sie sie noch einmal, oder als CSV</translation>
    </message>
</context>
<context>
    <name>StackedLayout</name>
    <message>
        <source>a row per run and time</source>
        <translation>eine Zeile je Lauf und Zeit</translation>
    </message>
    <message>
        <source>a row per run</source>
        <translation>eine Zeile je Lauf</translation>
    </message>
    <message>
        <source>a row per run and time, some of them at the same time</source>
        <translation>eine Zeile je Lauf und Zeit, einige zur selben Zeit</translation>
    </message>
</context>
<context>
    <name>StackedRows</name>
    <message>
        <source>the runs have different numbers of points</source>
        <translation>die Läufe haben verschieden viele Punkte</translation>
    </message>
    <message>
        <source>All times are infinite: the values are steady states.</source>
        <translation>Alle Zeiten sind unendlich: Die Werte sind stationäre Zustände.</translation>
    </message>
    <message>
        <source>Line %1: the time is infinite. Steady states are items of their own, &quot;... at steady state&quot;.</source>
        <translation>Zeile %1: Die Zeit ist unendlich. Stationäre Zustände sind eigene Größen, &quot;... at steady state&quot;.</translation>
    </message>
    <message>
        <source>Not all items have values at all times. Straight lines cross the gaps between them.</source>
        <translation>Nicht alle Größen haben zu allen Zeiten Werte. Geraden überbrücken die Lücken dazwischen.</translation>
    </message>
</context>
<context>
    <name>Study</name>
    <message>
        <source>%1, %2 each, %3</source>
        <translation>%1, je %2, %3</translation>
    </message>
    <message>
        <source>run</source>
        <translation>Lauf</translation>
    </message>
    <message>
        <source>runs</source>
        <translation>Läufe</translation>
    </message>
    <message>
        <source>point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>parameters</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>parameter value missing</source>
        <translation>Parameterwert fehlt</translation>
    </message>
    <message>
        <source>parameter values missing</source>
        <translation>Parameterwerte fehlen</translation>
    </message>
    <message>
        <source>row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>columns</source>
        <translation>Spalten</translation>
    </message>
</context>
<context>
    <name>StudyCatalogue</name>
    <message>
        <source>&amp;Indomethacin</source>
        <translation>&amp;Indometacin</translation>
    </message>
    <message>
        <source>Plasma concentrations of six subjects after an injection (Kwan and others, 1976), fitted with a decay over two compartments.</source>
        <translation>Plasmakonzentrationen von sechs Probanden nach einer Injektion (Kwan und andere, 1976), angepasst mit einem Abbau über zwei Kompartimente.</translation>
    </message>
    <message>
        <source>&amp;Course of the fit</source>
        <translation>&amp;Verlauf der Anpassung</translation>
    </message>
    <message>
        <source>Every step of the fit, one chart per pair of parameters, coloured by the sum of squares</source>
        <translation>Jeder Schritt der Anpassung, ein Diagramm je Parameterpaar, gefärbt nach der Quadratsumme</translation>
    </message>
    <message>
        <source>Concentration axis</source>
        <translation>Konzentrationsachse</translation>
    </message>
    <message>
        <source>linear</source>
        <translation>linear</translation>
    </message>
    <message>
        <source>logarithmic</source>
        <translation>logarithmisch</translation>
    </message>
    <message>
        <source>&amp;Fitted decay</source>
        <translation>&amp;Angepasster Abbau</translation>
    </message>
    <message>
        <source>The measured concentrations and the fitted curve</source>
        <translation>Die gemessenen Konzentrationen und die angepasste Kurve</translation>
    </message>
    <message>
        <source>&amp;Residuals</source>
        <translation>&amp;Residuen</translation>
    </message>
    <message>
        <source>Observation minus prediction, all subjects</source>
        <translation>Beobachtung minus Vorhersage, alle Probanden</translation>
    </message>
    <message>
        <source>&amp;Scaled residuals</source>
        <translation>&amp;Skalierte Residuen</translation>
    </message>
    <message>
        <source>Residuals divided by the standard deviation of the subjects</source>
        <translation>Residuen geteilt durch die Standardabweichung der Probanden</translation>
    </message>
    <message>
        <source>&amp;Predictions and observations</source>
        <translation>V&amp;orhersagen und Beobachtungen</translation>
    </message>
    <message>
        <source>Both side by side, all subjects</source>
        <translation>Beides nebeneinander, alle Probanden</translation>
    </message>
    <message>
        <source>Initial rates of a reaction in cells treated with puromycin (Bates and Watts, 1988): means of two replicates, their standard errors and the Michaelis-Menten curve.</source>
        <translation>Anfangsgeschwindigkeiten einer Reaktion in mit Puromycin behandelten Zellen (Bates und Watts, 1988): Mittel zweier Wiederholungen, ihre Standardfehler und die Michaelis-Menten-Kurve.</translation>
    </message>
    <message>
        <source>&amp;Puromycin</source>
        <translation>&amp;Puromycin</translation>
    </message>
    <message>
        <source>&amp;Initial rates</source>
        <translation>&amp;Anfangsgeschwindigkeiten</translation>
    </message>
    <message>
        <source>Mean rates with error bars and the fitted curve</source>
        <translation>Mittlere Geschwindigkeiten mit Fehlerbalken und die angepasste Kurve</translation>
    </message>
    <message>
        <source>Species</source>
        <translation>Spezies</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>Sobol indices of the example circuit: how much of the variance of a species each parameter explains, alone (first order) or with all its interactions (total).</source>
        <translation>Sobol-Indizes des Beispielschaltkreises: welchen Anteil an der Varianz einer Spezies jeder Parameter erklärt, allein (erste Ordnung) oder mit allen Wechselwirkungen (total).</translation>
    </message>
    <message>
        <source>Circuit &amp;sensitivity</source>
        <translation>&amp;Sensitivität des Schaltkreises</translation>
    </message>
    <message>
        <source>One band per parameter, for one species over time</source>
        <translation>Ein Band je Parameter, für eine Spezies über der Zeit</translation>
    </message>
    <message>
        <source>One bar per species, divided by parameters, at one time</source>
        <translation>Ein Balken je Spezies, nach Parametern geteilt, zu einem Zeitpunkt</translation>
    </message>
    <message>
        <source>&amp;First-order indices over time</source>
        <translation>Indizes &amp;erster Ordnung über der Zeit</translation>
    </message>
    <message>
        <source>&amp;Total indices over time</source>
        <translation>&amp;Totale Indizes über der Zeit</translation>
    </message>
    <message>
        <source>First-order indices by &amp;species</source>
        <translation>Indizes erster Ordnung nach &amp;Spezies</translation>
    </message>
    <message>
        <source>Total indices &amp;by species</source>
        <translation>Totale Indizes &amp;nach Spezies</translation>
    </message>
    <message>
        <source>The distributions from which the parameters of the example circuit&apos;s runs are drawn.</source>
        <translation>Die Verteilungen, aus denen die Parameter der Läufe des Beispielschaltkreises gezogen werden.</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Circuit p&amp;arameters</source>
        <translation>P&amp;arameter des Schaltkreises</translation>
    </message>
    <message>
        <source>&amp;Prior distributions</source>
        <translation>A-&amp;priori-Verteilungen</translation>
    </message>
    <message>
        <source>The density of one parameter</source>
        <translation>Die Dichte eines Parameters</translation>
    </message>
</context>
<context>
    <name>StudyCharts</name>
    <message>
        <source>Prior density of %1</source>
        <translation>A-priori-Dichte von %1</translation>
    </message>
</context>
<context>
    <name>StudyFile</name>
    <message>
        <source>the table does not fit into memory</source>
        <translation>die Tabelle passt nicht in den Speicher</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>lässt sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>%1 files of %2</source>
        <translation>%1 Dateien aus %2</translation>
    </message>
</context>
<context>
    <name>TableText</name>
    <message>
        <source>the file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>the text is UTF-16; save it as UTF-8</source>
        <translation>der Text ist in UTF-16 kodiert; bitte als UTF-8 speichern</translation>
    </message>
    <message>
        <source>not a table: the file holds binary data</source>
        <translation>keine Tabelle: Die Datei enthält Binärdaten</translation>
    </message>
    <message>
        <source>line %1: a quoted name is not closed</source>
        <translation>Zeile %1: Die Anführungszeichen um einen Namen sind nicht geschlossen</translation>
    </message>
    <message>
        <source>the table has %1 columns; at most %2 can be read</source>
        <translation>die Tabelle hat %1 Spalten; höchstens %2 lassen sich lesen</translation>
    </message>
    <message>
        <source>line %1: a quoted field is not closed</source>
        <translation>Zeile %1: Die Anführungszeichen um ein Feld sind nicht geschlossen</translation>
    </message>
    <message>
        <source>the table has no rows below its headers</source>
        <translation>die Tabelle hat unter ihren Überschriften keine Zeilen</translation>
    </message>
    <message>
        <source>line %1: %2 is ambiguous: the table has both decimal points and decimal commas</source>
        <translation>Zeile %1: %2 ist mehrdeutig: Die Tabelle enthält Dezimalpunkte und Dezimalkommas</translation>
    </message>
    <message>
        <source>the comma is the decimal mark</source>
        <translation>das Komma ist das Dezimalzeichen</translation>
    </message>
    <message>
        <source>the comma parts thousands</source>
        <translation>das Komma trennt Tausender</translation>
    </message>
    <message>
        <source>line %1: %2 could have a decimal comma (--decimal ,) or a comma between thousands (write the table without them)</source>
        <translation>Zeile %1: %2 kann ein Dezimalkomma haben (--decimal ,) oder ein Komma zwischen Tausendern (dann bitte die Tabelle ohne sie schreiben)</translation>
    </message>
    <message>
        <source>the first line</source>
        <translation>die erste Zeile</translation>
    </message>
    <message>
        <source>the header in line %1</source>
        <translation>die Kopfzeile %1</translation>
    </message>
    <message>
        <source>line %1 has 1 field, %3 has %2</source>
        <translation>Zeile %1 hat 1 Feld, %3 hat %2</translation>
    </message>
    <message>
        <source>line %1 has %2 fields, %4 has %3</source>
        <translation>Zeile %1 hat %2 Felder, %4 hat %3</translation>
    </message>
    <message>
        <source>Line %1, the last one, is cut short and is not read.</source>
        <translation>Zeile %1, die letzte, ist abgeschnitten und wird nicht gelesen.</translation>
    </message>
    <message>
        <source>not a table: its first line does not end; tables have a line for each row</source>
        <translation>keine Tabelle: die erste Zeile endet nicht; Tabellen haben eine Zeile je Reihe</translation>
    </message>
    <message>
        <source>the first line holds numbers, not the names of the columns; write a line of names above it, as many as there are columns</source>
        <translation>die erste Zeile enthält Zahlen, nicht die Namen der Spalten; schreiben Sie eine Zeile mit so vielen Namen darüber, wie es Spalten gibt</translation>
    </message>
    <message>
        <source>line %1: the run has no name in the column %2; fill it in, or name other columns (--run)</source>
        <translation>Zeile %1: Der Lauf hat in der Spalte %2 keinen Namen; tragen Sie ihn ein, oder nennen Sie andere Spalten (--run)</translation>
    </message>
    <message>
        <source>the text is UTF-16</source>
        <translation>der Text ist UTF-16</translation>
    </message>
    <message>
        <source>Line %1 repeats the header and is left out (%2 in all).</source>
        <translation>Zeile %1 wiederholt die Kopfzeile und wird weggelassen (insgesamt %2).</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::ClusterDock</name>
    <message>
        <source>Groups of runs</source>
        <translation>Gruppen von Läufen</translation>
    </message>
    <message>
        <source>G&amp;roup the runs</source>
        <translation>Läufe g&amp;ruppieren</translation>
    </message>
    <message>
        <source>Into how many groups the runs are sorted</source>
        <translation>In wie viele Gruppen die Läufe eingeteilt werden</translation>
    </message>
    <message>
        <source>Course over time</source>
        <translation>Zeitverlauf</translation>
    </message>
    <message>
        <source>Phases of the spectrum</source>
        <translation>Phasen des Spektrums</translation>
    </message>
    <message>
        <source>Magnitudes of the spectrum</source>
        <translation>Beträge des Spektrums</translation>
    </message>
    <message>
        <source>Click a group to select its runs</source>
        <translation>Eine Gruppe anklicken, um ihre Läufe auszuwählen</translation>
    </message>
    <message>
        <source>&amp;Number of groups</source>
        <translation>Anzah&amp;l der Gruppen</translation>
    </message>
    <message>
        <source>Alike &amp;by</source>
        <translation>Gl&amp;eich nach</translation>
    </message>
    <message>
        <source>&amp;Colours of the groups</source>
        <translation>&amp;Farben der Gruppen</translation>
    </message>
    <message>
        <source>&amp;Mean of each group</source>
        <translation>&amp;Mittel jeder Gruppe</translation>
    </message>
    <message>
        <source>Draw the mean course of each group in the XY plot</source>
        <translation>Im XY-Diagramm den mittleren Verlauf jeder Gruppe zeichnen</translation>
    </message>
    <message>
        <source>&amp;Quartile bands</source>
        <translation>&amp;Quartilbänder</translation>
    </message>
    <message>
        <source>Draw range, quartiles and median of all runs in the XY plot, and of the runs only the selected ones unless they have the colours of groups</source>
        <translation>Im XY-Diagramm Spannweite, Quartile und Median aller Läufe zeichnen und von den Läufen nur die ausgewählten, wenn sie nicht die Farben von Gruppen haben</translation>
    </message>
    <message>
        <source>Normalise each run to its m&amp;aximum</source>
        <translation>Jeden Lauf auf sein Maximum n&amp;ormieren</translation>
    </message>
    <message>
        <source>Scale each run of the chosen y columns so that its largest value is 1; unticked, the values are loaded again. Times, numbers of runs and parameters are left out</source>
        <translation>Jeden Lauf der gewählten y-Spalten so skalieren, dass sein größter Wert 1 ist; ohne Haken werden die Werte wieder geladen. Zeiten, Nummern der Läufe und Parameter bleiben außen vor</translation>
    </message>
    <message>
        <source>Draw each run in the colour of its group, in the XY plot, the scatter-plot matrix and parallel coordinates</source>
        <translation>Jeden Lauf in der Farbe seiner Gruppe zeichnen, im XY-Diagramm, in der Streudiagramm-Matrix und in parallelen Koordinaten</translation>
    </message>
    <message>
        <source>What makes two runs alike; of courses level and amplitude never count. Columns of texts make a group of each text</source>
        <translation>Worin sich zwei Läufe gleichen; bei Verläufen zählen Niveau und Amplitude nie. Spalten mit Texten machen aus jedem Text eine Gruppe</translation>
    </message>
    <message>
        <source>Sort the runs into groups by the first y column, or by a column of texts</source>
        <translation>Die Läufe nach der ersten y-Spalte oder nach einer Spalte mit Texten in Gruppen einteilen</translation>
    </message>
    <message>
        <source>Text in %1</source>
        <comment>the name of a column</comment>
        <translation>Text in %1</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::ComparisonDock</name>
    <message>
        <source>Comparison</source>
        <translation>Vergleich</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::ComparisonModel</name>
    <message>
        <source>The parameter that was compared</source>
        <translation>Der verglichene Parameter</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>D</source>
        <translation>D</translation>
    </message>
    <message>
        <source>p</source>
        <translation>p</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Ausgewählt</translation>
    </message>
    <message>
        <source>Not selected</source>
        <translation>Nicht ausgewählt</translation>
    </message>
    <message>
        <source>Number of selected runs</source>
        <translation>Anzahl der gewählten Läufe</translation>
    </message>
    <message>
        <source>Number of runs that are not selected</source>
        <translation>Anzahl der nicht gewählten Läufe</translation>
    </message>
    <message>
        <source>Where the selected runs have their values, compared with the others</source>
        <translation>Wo die ausgewählten Läufe ihre Werte haben, verglichen mit den übrigen</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Probability of such a difference, or a larger one, if the parameter had nothing to do with the selection</source>
        <translation>Wahrscheinlichkeit eines solchen oder größeren Unterschieds, wenn der Parameter nichts mit der Auswahl zu tun hätte</translation>
    </message>
    <message>
        <source>Superiority: probability that the value of a selected run exceeds that of another one; ties count half</source>
        <translation>Überlegenheit: Wahrscheinlichkeit, dass der Wert eines ausgewählten Laufs den eines anderen übertrifft; gleiche zählen halb</translation>
    </message>
    <message>
        <source>Sup.</source>
        <comment>probability of superiority, as a narrow header</comment>
        <translation>Überl.</translation>
    </message>
    <message>
        <source>Difference of medians: that of the selected runs less that of the others</source>
        <translation>Unterschied der Mediane: der der ausgewählten Läufe weniger der der übrigen</translation>
    </message>
    <message>
        <source>Δ med.</source>
        <comment>difference of medians, as a narrow header</comment>
        <translation>Δ Med.</translation>
    </message>
    <message>
        <source>Adj. p</source>
        <comment>adjusted p, as a narrow header</comment>
        <translation>Korr. p</translation>
    </message>
    <message>
        <source>%1 permutations, seed %2</source>
        <translation>%1 Vertauschungen, Startwert %2</translation>
    </message>
    <message>
        <source>Number of runs in %1</source>
        <comment>a kept selection</comment>
        <translation>Anzahl der Läufe in %1</translation>
    </message>
    <message>
        <source>Number of the other runs</source>
        <translation>Anzahl der anderen Läufe</translation>
    </message>
    <message>
        <source>Others</source>
        <comment>the other runs</comment>
        <translation>Andere</translation>
    </message>
    <message>
        <source>Largest distance of the two empirical distribution functions; in brackets what holds the true distance with 95 %, where the runs are independent. Of texts without an order V: Cramér&apos;s measure of how much their shares differ, from 0 to 1</source>
        <translation>Größter Abstand der beiden empirischen Verteilungsfunktionen; in Klammern, was den wahren Abstand mit 95 % enthält, wo die Läufe unabhängig sind. Bei Texten ohne Ordnung V: Cramérs Maß dafür, wie sehr sich ihre Anteile unterscheiden, von 0 bis 1</translation>
    </message>
    <message>
        <source>Adjusted p: for the number of parameters tested; bold where it and D or V meet the thresholds</source>
        <translation>Korrigiertes p: für die Zahl der getesteten Parameter; fett, wo es und D oder V die Schwellen erreichen</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::ComparisonSettings</name>
    <message>
        <source>&amp;Distributions</source>
        <translation>&amp;Verteilungen</translation>
    </message>
    <message>
        <source>The runs, and below them how each parameter is distributed</source>
        <translation>Die Läufe und darunter die Verteilung jedes Parameters</translation>
    </message>
    <message>
        <source>Parameter &amp;pairs</source>
        <translation>Parameter&amp;paare</translation>
    </message>
    <message>
        <source>The runs, and each parameter over each other one</source>
        <translation>Die Läufe und jeder Parameter über jedem anderen</translation>
    </message>
    <message>
        <source>Parameters with at least this Kolmogorov-Smirnov statistic D count as different</source>
        <translation>Parameter mit mindestens dieser Kolmogorow-Smirnow-Statistik D gelten als verschieden</translation>
    </message>
    <message>
        <source>D&amp;ensities</source>
        <translation>Di&amp;chten</translation>
    </message>
    <message>
        <source>Densities instead of empirical distribution functions (ECDF)</source>
        <translation>Dichten statt empirischer Verteilungsfunktionen (ECDF)</translation>
    </message>
    <message>
        <source>Common density scale</source>
        <translation>Gemeinsame Dichteskala</translation>
    </message>
    <message>
        <source>The same scale for the densities of all parameters</source>
        <translation>Dieselbe Skala für die Dichten aller Parameter</translation>
    </message>
    <message>
        <source>Logarithmic parameters</source>
        <translation>Logarithmische Parameter</translation>
    </message>
    <message>
        <source>Logarithmic parameter axes, where all values are positive</source>
        <translation>Logarithmische Parameterachsen, wo alle Werte positiv sind</translation>
    </message>
    <message>
        <source>Quartile bands</source>
        <translation>Quartilbänder</translation>
    </message>
    <message>
        <source>Range, quartiles and median of all runs; of the runs themselves only the selected ones</source>
        <translation>Spannweite, Quartile und Median aller Läufe; von den Läufen selbst nur die ausgewählten</translation>
    </message>
    <message>
        <source>How selected runs are told from the others</source>
        <translation>Wie ausgewählte Läufe von den übrigen unterschieden werden</translation>
    </message>
    <message>
        <source>What the adjusted p bounds when several parameters are tested</source>
        <translation>Was das berichtigte p begrenzt, wenn mehrere Parameter geprüft werden</translation>
    </message>
    <message>
        <source>Parameters with at most this adjusted p count as different and are shown first</source>
        <translation>Parameter mit höchstens diesem berichtigten p gelten als verschieden und werden zuerst gezeigt</translation>
    </message>
    <message>
        <source>Adjusted p ≤</source>
        <translation>Berichtigtes p ≤</translation>
    </message>
    <message>
        <source>D ≥</source>
        <translation>D ≥</translation>
    </message>
    <message>
        <source>Chec&amp;k in halves</source>
        <translation>&amp;Kontrolle in Hälften</translation>
    </message>
    <message>
        <source>The honest check of what was found by looking: split the parameter sets at random, keep what differs in one half, and test that in the other</source>
        <translation>Die ehrliche Probe dessen, was beim Hinsehen gefunden wurde: die Parametersätze zufällig teilen, behalten, was sich in der einen Hälfte unterscheidet, und das in der anderen prüfen</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::ComparisonTable</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Speichern...</translation>
    </message>
    <message>
        <source>Copy the table, or its selected rows, for a spreadsheet (Ctrl+C)</source>
        <translation>Die Tabelle oder ihre ausgewählten Zeilen für eine Tabellenkalkulation kopieren (Strg+C)</translation>
    </message>
    <message>
        <source>Write the table to a CSV file</source>
        <translation>Die Tabelle in eine CSV-Datei schreiben</translation>
    </message>
    <message>
        <source>Copied the comparison</source>
        <translation>Vergleich kopiert</translation>
    </message>
    <message>
        <source>Save the comparison</source>
        <translation>Vergleich speichern</translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation>Tabelle (*.csv)</translation>
    </message>
    <message>
        <source>Wrote %1</source>
        <translation>%1 geschrieben</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::DesignBox</name>
    <message>
        <source>Saltelli design</source>
        <translation>Saltelli-Plan</translation>
    </message>
    <message>
        <source>The parameter sets are known to be a Saltelli design, for Sobol indices: k + 2 or 2 k + 2 runs for each base sample, which are not independent. Without this, such a design is recognised by its values</source>
        <translation>Die Parametersätze sind bekanntlich ein Saltelli-Plan, für Sobol-Indizes: k + 2 oder 2 k + 2 Läufe je Grundstichprobe, die nicht unabhängig sind. Sonst wird ein solcher Plan an seinen Werten erkannt</translation>
    </message>
    <message>
        <source>k: all that vary</source>
        <translation>k: alle, die sich ändern</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::ExportController</name>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Writing %1 ...</source>
        <translation>%1 wird geschrieben ...</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::ExportDialog</name>
    <message>
        <source>As on the &amp;screen</source>
        <translation>Wie auf dem &amp;Bildschirm</translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation>Größe des Bildes</translation>
    </message>
    <message>
        <source> dpi</source>
        <translation> dpi</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>B&amp;reite</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>&amp;Höhe</translation>
    </message>
    <message>
        <source>&amp;Resolution</source>
        <translation>&amp;Auflösung</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>As vectors, many as a picture</source>
        <translation>Als Vektoren, viele als Bild</translation>
    </message>
    <message>
        <source>All as vectors</source>
        <translation>Alle als Vektoren</translation>
    </message>
    <message>
        <source>As a picture</source>
        <translation>Als Bild</translation>
    </message>
    <message>
        <source>&amp;Lines and points</source>
        <translation>&amp;Linien und Punkte</translation>
    </message>
    <message>
        <source>R&amp;esolution of pictures</source>
        <translation>Aufl&amp;ösung der Bilder</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>Of a size on &amp;paper</source>
        <translation>In einer Größe auf &amp;Papier</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>Schri&amp;ft</translation>
    </message>
    <message>
        <source>%1 pt for this width</source>
        <translation>%1 pt bei dieser Breite</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::FeatureController</name>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Computing what the chart shows of the runs ...</source>
        <translation>Berechne, was das Diagramm von den Läufen zeigt ...</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::FileMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>E&amp;xportieren …</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>B&amp;eenden</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>Open runs</source>
        <translation>Läufe öffnen</translation>
    </message>
    <message>
        <source>Open the e&amp;xample study</source>
        <translation>&amp;Beispielstudie öffnen</translation>
    </message>
    <message>
        <source>Ctrl+Shift+O</source>
        <translation>Ctrl+Shift+O</translation>
    </message>
    <message>
        <source>Open sessio&amp;n...</source>
        <translation>S&amp;itzung öffnen …</translation>
    </message>
    <message>
        <source>Ctrl+Alt+O</source>
        <translation>Ctrl+Alt+O</translation>
    </message>
    <message>
        <source>Open session</source>
        <translation>Sitzung öffnen</translation>
    </message>
    <message>
        <source>Sessions (*.talmesh)</source>
        <translation>Sitzungen (*.talmesh)</translation>
    </message>
    <message>
        <source>&amp;Save session...</source>
        <translation>Sitzung &amp;speichern …</translation>
    </message>
    <message>
        <source>Save session &amp;as...</source>
        <translation>Sitzung speichern &amp;unter …</translation>
    </message>
    <message>
        <source>Ctrl+Alt+S</source>
        <translation>Ctrl+Alt+S</translation>
    </message>
    <message>
        <source>Tables and sessions (%1 *.talmesh)</source>
        <translation>Tabellen und Sitzungen (%1 *.talmesh)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>O&amp;pen as...</source>
        <translation>Öffnen &amp;als …</translation>
    </message>
    <message>
        <source>Ctrl+Alt+P</source>
        <translation>Ctrl+Alt+P</translation>
    </message>
    <message>
        <source>Open as...</source>
        <translation>Öffnen als</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::FilterLine</name>
    <message>
        <source>Runs &amp;where</source>
        <translation>Läufe, &amp;wo</translation>
    </message>
    <message>
        <source>A condition on single runs. Names with blanks stand in double quotes. Numbers of an item A: min(A), max(A), mean(A), first(A), final(A), at(A, time), peaks(A), period(A). Conditions: through(A, t0, t1, v0, v1), inside(A, t0, t1, v0, v1).</source>
        <translation>Eine Bedingung an einzelne Läufe. Namen mit Leerzeichen stehen in Anführungszeichen. Zahlen einer Größe A: min(A), max(A), mean(A), first(A), final(A), at(A, Zeit), peaks(A), period(A). Bedingungen: through(A, t0, t1, v0, v1), inside(A, t0, t1, v0, v1).</translation>
    </message>
    <message>
        <source>Select only these</source>
        <translation>Nur diese auswählen</translation>
    </message>
    <message>
        <source>Add to selection</source>
        <translation>Zur Auswahl hinzunehmen</translation>
    </message>
    <message>
        <source>Take from selection</source>
        <translation>Von der Auswahl wegnehmen</translation>
    </message>
    <message>
        <source>Toggle</source>
        <translation>Umschalten</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::GestureActions</name>
    <message>
        <source>&amp;Rectangle</source>
        <translation>&amp;Rechteck</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>The right mouse button draws a rectangle. With Ctrl runs are added, with Shift taken away, with both toggled; a click means the run that is nearest.</source>
        <translation>Die rechte Maustaste zieht ein Rechteck auf. Mit Strg kommen Läufe hinzu, mit der Umschalttaste fallen sie weg, mit beiden werden sie umgekehrt; ein Klick meint den nächsten Lauf.</translation>
    </message>
    <message>
        <source>Lass&amp;o</source>
        <translation>Lass&amp;o</translation>
    </message>
    <message>
        <source>Lasso</source>
        <translation>Lasso</translation>
    </message>
    <message>
        <source>The right mouse button draws around what is to be selected</source>
        <translation>Die rechte Maustaste umfährt, was ausgewählt werden soll</translation>
    </message>
    <message>
        <source>&amp;Crossing line</source>
        <translation>&amp;Querlinie</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Querlinie</translation>
    </message>
    <message>
        <source>The right mouse button draws a line across the runs to be selected</source>
        <translation>Die rechte Maustaste zieht eine Linie quer durch die Läufe, die ausgewählt werden sollen</translation>
    </message>
    <message>
        <source>Runs passing &amp;through</source>
        <translation>Läufe, die &amp;hindurchgehen</translation>
    </message>
    <message>
        <source>Through</source>
        <translation>Hindurch</translation>
    </message>
    <message>
        <source>A rectangle means the runs whose line passes through it</source>
        <translation>Ein Rechteck meint die Läufe, deren Linie hindurchgeht</translation>
    </message>
    <message>
        <source>Runs insi&amp;de all the time</source>
        <translation>Läufe, die dauernd &amp;darin sind</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>Darin</translation>
    </message>
    <message>
        <source>A rectangle means the runs that are in it at every time that it covers</source>
        <translation>Ein Rechteck meint die Läufe, die zu jeder Zeit darin sind, die es überdeckt</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::GroupController</name>
    <message>
        <source>This data has no runs over time to group.</source>
        <translation>Diese Daten haben keine Läufe über der Zeit, die sich gruppieren ließen.</translation>
    </message>
    <message>
        <source>Grouping the runs ...</source>
        <translation>Die Läufe werden gruppiert ...</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>&amp;Tastenkürzel</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Ü&amp;ber Talmesh Plot</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>About Talmesh Plot</source>
        <translation>Über Talmesh Plot</translation>
    </message>
    <message>
        <source>Talmesh Plot %1
Plots of simulated runs.</source>
        <translation>Talmesh Plot %1
Grafiken simulierter Läufe.</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::ImportDialog</name>
    <message>
        <source>&amp;Remember for tables with these columns</source>
        <translation>Für Tabellen mit diesen Spalten &amp;merken</translation>
    </message>
    <message>
        <source>Open %1 as</source>
        <translation>%1 öffnen als</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 Dateien</translation>
    </message>
    <message>
        <source>First rows of the table</source>
        <translation>Erste Zeilen der Tabelle</translation>
    </message>
    <message>
        <source>What is understood of the table</source>
        <translation>Was von der Tabelle verstanden wurde</translation>
    </message>
    <message>
        <source>Command li&amp;ne</source>
        <translation>&amp;Befehlszeile</translation>
    </message>
    <message>
        <source>Reading ...</source>
        <translation>Wird gelesen …</translation>
    </message>
    <message>
        <source>Reading ... (so far %1)</source>
        <translation>Wird gelesen … (bisher %1)</translation>
    </message>
    <message>
        <source>It may be read in several ways: choose one</source>
        <translation>Sie kann auf mehrere Arten gelesen werden: eine auswählen</translation>
    </message>
    <message>
        <source>It cannot be read so</source>
        <translation>So kann sie nicht gelesen werden</translation>
    </message>
    <message>
        <source>The first %1 of %2 columns are shown.</source>
        <translation>Die ersten %1 von %2 Spalten werden gezeigt.</translation>
    </message>
    <message>
        <source>&amp;Column %1 is</source>
        <translation>Spa&amp;lte %1 ist</translation>
    </message>
    <message>
        <source>Role of the column %1</source>
        <translation>Rolle der Spalte %1</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::ImportModel</name>
    <message>
        <source>time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>run</source>
        <translation>Lauf</translation>
    </message>
    <message>
        <source>item</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>measured</source>
        <translation>gemessen</translation>
    </message>
    <message>
        <source>parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>condition</source>
        <translation>Bedingung</translation>
    </message>
    <message>
        <source>ignored</source>
        <translation>ausgelassen</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatisch</translation>
    </message>
    <message>
        <source>%1 is to be: %2</source>
        <translation>%1 soll sein: %2</translation>
    </message>
    <message>
        <source>%1 is recognised as: %2</source>
        <translation>%1 wurde erkannt als: %2</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::KeptSelections</name>
    <message>
        <source>Selection</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Keep %1</source>
        <translation>%1 merken</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>%1 umbenennen</translation>
    </message>
    <message>
        <source>Colour %1</source>
        <translation>%1 färben</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::KeptSelectionsDock</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Läufe</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Bedingung</translation>
    </message>
    <message>
        <source>Double-click a selection to select its runs again</source>
        <translation>Ein Doppelklick wählt die Läufe einer Auswahl wieder aus</translation>
    </message>
    <message>
        <source>Kept selections</source>
        <translation>Gemerkte Auswahlen</translation>
    </message>
    <message>
        <source>Keep selection</source>
        <translation>Auswahl merken</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Colour...</source>
        <translation>Farbe...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Save all...</source>
        <translation>Alle speichern...</translation>
    </message>
    <message>
        <source>Ctrl+K</source>
        <translation>Ctrl+K</translation>
    </message>
    <message>
        <source>Keep the selected runs under a name (%1)</source>
        <translation>Die ausgewählten Läufe unter einem Namen merken (%1)</translation>
    </message>
    <message>
        <source>Write a table (.csv) of the runs, with a column for each selection</source>
        <translation>Eine Tabelle (.csv) der Läufe schreiben, mit einer Spalte für jede Auswahl</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Select only these</source>
        <translation>Nur diese auswählen</translation>
    </message>
    <message>
        <source>Add to selection</source>
        <translation>Zur Auswahl hinzunehmen</translation>
    </message>
    <message>
        <source>Take from selection</source>
        <translation>Von der Auswahl wegnehmen</translation>
    </message>
    <message>
        <source>Toggle</source>
        <translation>Umschalten</translation>
    </message>
    <message>
        <source>Nothing is kept. Select some runs and keep them here under a name, to select them again or to save them.</source>
        <translation>Nichts ist gemerkt. Wählen Sie einige Läufe aus und merken Sie sie hier unter einem Namen, um sie wieder auszuwählen oder zu speichern.</translation>
    </message>
    <message>
        <source>Save kept selections</source>
        <translation>Gemerkte Auswahlen speichern</translation>
    </message>
    <message>
        <source>Wrote %1</source>
        <translation>%1 geschrieben</translation>
    </message>
    <message>
        <source>Show in charts</source>
        <translation>In Diagrammen zeigen</translation>
    </message>
    <message>
        <source>Draw runs in the colours of these selections; that of the last one counts</source>
        <translation>Läufe in den Farben dieser Auswahlen zeichnen; die der letzten zählt</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::MainWindow</name>
    <message>
        <source>The window closes when all is written</source>
        <translation>Das Fenster schließt, wenn alles geschrieben ist</translation>
    </message>
    <message>
        <source>Wrote %1</source>
        <translation>%1 geschrieben</translation>
    </message>
    <message>
        <source>Updated in %1 ms</source>
        <translation>In %1 ms aktualisiert</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::PlotDock</name>
    <message>
        <source>Plot</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>Sty&amp;le</source>
        <translation>Dar&amp;stellung</translation>
    </message>
    <message>
        <source>&amp;X</source>
        <translation>&amp;X</translation>
    </message>
    <message>
        <source>&amp;Y</source>
        <translation>&amp;Y</translation>
    </message>
    <message>
        <source>&amp;Z</source>
        <translation>&amp;Z</translation>
    </message>
    <message>
        <source>L&amp;ines</source>
        <translation>L&amp;inien</translation>
    </message>
    <message>
        <source>One line per run instead of points</source>
        <translation>Eine Linie je Lauf statt Punkten</translation>
    </message>
    <message>
        <source>%1: one value for a run</source>
        <translation>%1: ein Wert je Lauf</translation>
    </message>
    <message>
        <source>Le&amp;gend</source>
        <translation>Le&amp;gende</translation>
    </message>
    <message>
        <source>Show what each colour means</source>
        <translation>Zeigt, was jede Farbe bedeutet</translation>
    </message>
    <message>
        <source>Logarithmic x axis</source>
        <translation>Logarithmische x-Achse</translation>
    </message>
    <message>
        <source>Needs positive values</source>
        <translation>Braucht positive Werte</translation>
    </message>
    <message>
        <source>Logarithmic y axis</source>
        <translation>Logarithmische y-Achse</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::ReadingChoices</name>
    <message>
        <source>comma ,</source>
        <translation>Komma ,</translation>
    </message>
    <message>
        <source>semicolon ;</source>
        <translation>Semikolon ;</translation>
    </message>
    <message>
        <source>tab</source>
        <translation>Tabulator</translation>
    </message>
    <message>
        <source>blanks</source>
        <translation>Leerzeichen</translation>
    </message>
    <message>
        <source>bar |</source>
        <translation>Strich |</translation>
    </message>
    <message>
        <source>colon :</source>
        <translation>Doppelpunkt :</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>&amp;Layout</source>
        <translation>&amp;Aufbau</translation>
    </message>
    <message>
        <source>&amp;Separator</source>
        <translation>Tre&amp;nnzeichen</translation>
    </message>
    <message>
        <source>&amp;Decimal mark</source>
        <translation>&amp;Dezimalzeichen</translation>
    </message>
    <message>
        <source>&amp;Unequal runs</source>
        <translation>&amp;Ungleiche Läufe</translation>
    </message>
    <message>
        <source>Each &amp;file is</source>
        <translation>&amp;Jede Datei ist</translation>
    </message>
    <message>
        <source>the first one</source>
        <translation>die erste</translation>
    </message>
    <message>
        <source>Of a file with several tables: the sheet, array, group or member</source>
        <translation>Bei einer Datei mit mehreren Tabellen: das Blatt, das Feld, die Gruppe oder der Eintrag</translation>
    </message>
    <message>
        <source>S&amp;heet</source>
        <translation>Bla&amp;tt</translation>
    </message>
    <message>
        <source>point .</source>
        <translation>Punkt .</translation>
    </message>
    <message>
        <source>have gaps</source>
        <translation>haben Lücken</translation>
    </message>
    <message>
        <source>have lines across gaps</source>
        <translation>haben Linien über Lücken</translation>
    </message>
    <message>
        <source>What runs of different times have at the times of others</source>
        <translation>Was Läufe mit verschiedenen Zeiten zu den Zeiten der anderen haben</translation>
    </message>
    <message>
        <source>a run</source>
        <translation>ein Lauf</translation>
    </message>
    <message>
        <source>an item</source>
        <translation>eine Größe</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::RecentMenu</name>
    <message>
        <source>Open &amp;recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Noch keine</translation>
    </message>
    <message>
        <source>&amp;Clear list</source>
        <translation>Liste &amp;leeren</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::RunColumnMenu</name>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::RunNormaliser</name>
    <message>
        <source>Normalise Runs</source>
        <translation>Läufe normieren</translation>
    </message>
    <message>
        <source>Reload Values</source>
        <translation>Werte neu laden</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::RunTableDock</name>
    <message>
        <source>Table of runs</source>
        <translation>Tabelle der Läufe</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Speichern...</translation>
    </message>
    <message>
        <source>Copy the selected runs, or all of them, for a spreadsheet (Ctrl+C)</source>
        <translation>Die ausgewählten Läufe, oder alle, für eine Tabellenkalkulation kopieren (Strg+C)</translation>
    </message>
    <message>
        <source>Write the table of all runs to a CSV file</source>
        <translation>Die Tabelle aller Läufe in eine CSV-Datei schreiben</translation>
    </message>
    <message>
        <source>Choose what the table shows of each run</source>
        <translation>Wählen, was die Tabelle von jedem Lauf zeigt</translation>
    </message>
    <message>
        <source>This data has no runs to list.</source>
        <translation>Diese Daten haben keine Läufe, die aufgezählt werden könnten.</translation>
    </message>
    <message>
        <source>Computing the numbers of the runs ...</source>
        <translation>Die Zahlen der Läufe werden berechnet ...</translation>
    </message>
    <message>
        <source>Copied the table of runs</source>
        <translation>Tabelle der Läufe kopiert</translation>
    </message>
    <message>
        <source>Save the table of runs</source>
        <translation>Tabelle der Läufe speichern</translation>
    </message>
    <message>
        <source>Wrote %1</source>
        <translation>%1 geschrieben</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::RunTableModel</name>
    <message>
        <source>Run</source>
        <translation>Lauf</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::SearchController</name>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Looking for the runs that meet the condition ...</source>
        <translation>Suche die Läufe, die die Bedingung erfüllen ...</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::SeedBox</name>
    <message>
        <source>What is drawn at random follows from this number: the halves, and the permutations. The same one gives the same result on every machine</source>
        <translation>Aus dieser Zahl folgt, was zufällig gezogen wird: die Hälften und die Vertauschungen. Dieselbe gibt auf jedem Rechner dasselbe Ergebnis</translation>
    </message>
    <message>
        <source>Seed</source>
        <translation>Startwert</translation>
    </message>
    <message>
        <source>Draw anew</source>
        <translation>Neu ziehen</translation>
    </message>
    <message>
        <source>Draw other halves and other permutations</source>
        <translation>Andere Hälften und andere Vertauschungen ziehen</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::SelectionController</name>
    <message>
        <source>This table has no runs to select.</source>
        <translation>Diese Tabelle hat keine Läufe, die sich auswählen ließen.</translation>
    </message>
    <message>
        <source>%1 of %2 runs selected</source>
        <translation>%1 von %2 Läufen ausgewählt</translation>
    </message>
    <message>
        <source>%1 of %2 rows selected</source>
        <translation>%1 von %2 Zeilen ausgewählt</translation>
    </message>
    <message>
        <source>Invert Selection</source>
        <translation>Auswahl umkehren</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::SelectionMenu</name>
    <message>
        <source>&amp;Selection</source>
        <translation>&amp;Auswahl</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>Select &amp;nothing</source>
        <translation>&amp;Nichts auswählen</translation>
    </message>
    <message>
        <source>&amp;Load selected runs...</source>
        <translation>Ausgewählte Läufe &amp;laden …</translation>
    </message>
    <message>
        <source>Ctrl+Shift+L</source>
        <translation>Ctrl+Shift+L</translation>
    </message>
    <message>
        <source>&amp;Save selected runs...</source>
        <translation>Ausgewählte Läufe &amp;speichern …</translation>
    </message>
    <message>
        <source>Ctrl+Shift+S</source>
        <translation>Ctrl+Shift+S</translation>
    </message>
    <message>
        <source>Save selected runs</source>
        <translation>Ausgewählte Läufe speichern</translation>
    </message>
    <message>
        <source>Runs (*.json)</source>
        <translation>Läufe (*.json)</translation>
    </message>
    <message>
        <source>Load selected runs</source>
        <translation>Ausgewählte Läufe laden</translation>
    </message>
    <message>
        <source>&amp;Invert selection</source>
        <translation>Auswahl &amp;umkehren</translation>
    </message>
    <message>
        <source>Ctrl+I</source>
        <translation>Ctrl+I</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::SessionController</name>
    <message>
        <source>Save session</source>
        <translation>Sitzung speichern</translation>
    </message>
    <message>
        <source>Sessions (*.talmesh)</source>
        <translation>Sitzungen (*.talmesh)</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::SideBoxes</name>
    <message>
        <source>The runs that are compared</source>
        <translation>Die Läufe, die verglichen werden</translation>
    </message>
    <message>
        <source>The runs that they are compared with</source>
        <translation>Die Läufe, mit denen sie verglichen werden</translation>
    </message>
    <message>
        <source>with</source>
        <comment>between two selections that are compared</comment>
        <translation>mit</translation>
    </message>
    <message>
        <source>Present selection</source>
        <translation>Jetzige Auswahl</translation>
    </message>
    <message>
        <source>The others</source>
        <translation>Die übrigen</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::StepsDock</name>
    <message>
        <source>Steps of the selection</source>
        <translation>Schritte der Auswahl</translation>
    </message>
    <message>
        <source>As opened</source>
        <translation>Wie geöffnet</translation>
    </message>
    <message>
        <source>Click a step to return to what was selected then</source>
        <translation>Ein Klick auf einen Schritt führt zu dem zurück, was da ausgewählt war</translation>
    </message>
    <message>
        <source>Copy steps</source>
        <translation>Schritte kopieren</translation>
    </message>
    <message>
        <source>Copy the steps so far, as for a description of methods</source>
        <translation>Die bisherigen Schritte kopieren, etwa für eine Beschreibung der Methoden</translation>
    </message>
    <message>
        <source>Copy condition</source>
        <translation>Bedingung kopieren</translation>
    </message>
    <message>
        <source>Copy the condition that the selected runs meet, and no others</source>
        <translation>Die Bedingung kopieren, die genau die ausgewählten Läufe erfüllen</translation>
    </message>
    <message>
        <source>Put into the line</source>
        <translation>In die Zeile setzen</translation>
    </message>
    <message>
        <source>Put that condition into the line &quot;Runs where&quot;, to change it or to use it with another study</source>
        <translation>Diese Bedingung in die Zeile „Läufe, wo“ setzen, um sie zu ändern oder für eine andere Studie zu verwenden</translation>
    </message>
    <message>
        <source>Copied the steps</source>
        <translation>Schritte kopiert</translation>
    </message>
    <message>
        <source>Copied the condition</source>
        <translation>Bedingung kopiert</translation>
    </message>
    <message>
        <source>As opened: %1</source>
        <translation>Wie geöffnet: %1</translation>
    </message>
    <message>
        <source>%1 steps after that are no longer known</source>
        <translation>%1 Schritte danach sind nicht mehr bekannt</translation>
    </message>
    <message>
        <source>The steps before the session was saved, to be read: what was selected then is not kept</source>
        <translation>Die Schritte, bevor die Sitzung gespeichert wurde, zum Nachlesen: Was dazwischen ausgewählt war, ist nicht aufgehoben</translation>
    </message>
    <message>
        <source>%1 steps before that are no longer known</source>
        <translation>%1 Schritte davor sind nicht mehr bekannt</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::StudiesMenu</name>
    <message>
        <source>S&amp;tudies</source>
        <translation>S&amp;tudien</translation>
    </message>
    <message>
        <source>&amp;Runs</source>
        <translation>&amp;Läufe</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Show the runs opened last once more</source>
        <translation>Die zuletzt geöffneten Läufe wieder zeigen</translation>
    </message>
    <message>
        <source>&amp;Example circuit</source>
        <translation>&amp;Beispielschaltkreis</translation>
    </message>
    <message>
        <source>Simulate the runs of the example circuit</source>
        <translation>Die Läufe des Beispielschaltkreises simulieren</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::StudyDock</name>
    <message>
        <source>Study</source>
        <translation>Studie</translation>
    </message>
    <message>
        <source>Choose what the chart shows</source>
        <translation>Wählen, was das Diagramm zeigt</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::StudyOpener</name>
    <message>
        <source>the example study</source>
        <translation>die Beispielstudie</translation>
    </message>
    <message>
        <source>Opening %1 ...</source>
        <translation>%1 wird geöffnet …</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 Dateien</translation>
    </message>
    <message>
        <source>Read as is remembered for tables with these columns.</source>
        <translation>Gelesen, wie es für Tabellen mit diesen Spalten gemerkt ist.</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::TaskBar</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::TimeCoursePage</name>
    <message>
        <source>The run whose time courses are shown</source>
        <translation>Der Lauf, dessen Zeitverläufe gezeigt werden</translation>
    </message>
    <message>
        <source>R&amp;un</source>
        <translation>La&amp;uf</translation>
    </message>
    <message>
        <source>this run</source>
        <translation>dieser Lauf</translation>
    </message>
    <message>
        <source>this run and its %1 nearest</source>
        <translation>dieser Lauf und seine %1 nächsten</translation>
    </message>
    <message>
        <source>the selected runs</source>
        <translation>die ausgewählten Läufe</translation>
    </message>
    <message>
        <source>Which runs are shown. The nearest are those whose smallest, largest, mean and final values differ least from those of this run, in standard deviations.</source>
        <translation>Welche Läufe gezeigt werden. Die nächsten sind die, deren kleinste, größte, mittlere und letzte Werte von denen dieses Laufs am wenigsten abweichen, in Standardabweichungen.</translation>
    </message>
    <message>
        <source>No run is selected.</source>
        <translation>Kein Lauf ist ausgewählt.</translation>
    </message>
    <message>
        <source>The first %1 of %2 selected runs</source>
        <translation>Die ersten %1 von %2 ausgewählten Läufen</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::ViewMenu</name>
    <message>
        <source>&amp;View</source>
        <translation>A&amp;nsicht</translation>
    </message>
    <message>
        <source>Lines or points</source>
        <translation>Linien oder Punkte</translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation>Ctrl+L</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>Legende</translation>
    </message>
    <message>
        <source>Ctrl+G</source>
        <translation>Ctrl+G</translation>
    </message>
    <message>
        <source>Logarithmic x axis</source>
        <translation>Logarithmische x-Achse</translation>
    </message>
    <message>
        <source>Ctrl+Shift+X</source>
        <translation>Ctrl+Shift+X</translation>
    </message>
    <message>
        <source>Logarithmic y axis</source>
        <translation>Logarithmische y-Achse</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Y</source>
        <translation>Ctrl+Shift+Y</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::WindowPanels</name>
    <message>
        <source>Runs</source>
        <translation>Läufe</translation>
    </message>
    <message>
        <source>Time courses</source>
        <translation>Zeitverläufe</translation>
    </message>
    <message>
        <source>Selecting runs</source>
        <translation>Läufe auswählen</translation>
    </message>
    <message>
        <source>The chart of this study is composed already.</source>
        <translation>Das Diagramm dieser Studie ist schon zusammengestellt.</translation>
    </message>
</context>
<context>
    <name>Talmesh::app::WorkKeeper</name>
    <message>
        <source>no thread could be started</source>
        <translation>kein Thread konnte gestartet werden</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 lässt sich nicht schreiben</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>der Arbeitsspeicher reicht nicht aus</translation>
    </message>
    <message>
        <source>Unsaved work cannot be kept for later: %1</source>
        <translation>Ungespeicherte Arbeit lässt sich nicht aufheben: %1</translation>
    </message>
</context>
<context>
    <name>Talmesh::designer::WidgetCollection</name>
    <message>
        <source>Shows one plot</source>
        <translation>Zeigt eine Grafik</translation>
    </message>
    <message>
        <source>Lets the user choose the items to plot</source>
        <translation>Lässt den Benutzer die dargestellten Größen wählen</translation>
    </message>
    <message>
        <source>Shows time courses with a list to choose them from</source>
        <translation>Zeigt Zeitverläufe mit einer Liste, aus der sie gewählt werden</translation>
    </message>
</context>
<context>
    <name>TaskRunner</name>
    <message>
        <source>there is not enough memory for this</source>
        <translation>dafür reicht der Speicher nicht</translation>
    </message>
    <message>
        <source>this cannot be done: %1</source>
        <translation>das ist nicht möglich: %1</translation>
    </message>
</context>
<context>
    <name>TestNames</name>
    <message>
        <source>KS: distributions</source>
        <translation>KS: Verteilungen</translation>
    </message>
    <message>
        <source>Kolmogorov-Smirnov: any difference of the distributions, also values at both ends or in the middle</source>
        <translation>Kolmogorow-Smirnow: jeder Unterschied der Verteilungen, auch Werte an beiden Enden oder in der Mitte</translation>
    </message>
    <message>
        <source>Mann-Whitney: ranks</source>
        <translation>Mann-Whitney: Ränge</translation>
    </message>
    <message>
        <source>Whether selected runs tend to larger, or to smaller values; sharper for that, blind for differences both ways</source>
        <translation>Ob ausgewählte Läufe zu größeren oder zu kleineren Werten neigen; dafür schärfer, blind für Unterschiede nach beiden Seiten</translation>
    </message>
    <message>
        <source>Counts per value</source>
        <translation>Anzahlen je Wert</translation>
    </message>
    <message>
        <source>For parameters with few values, taken as names without an order: Fisher&apos;s exact test, or chi-squared for large tables</source>
        <translation>Für Parameter mit wenigen Werten, die als Namen ohne Ordnung gelten: exakter Test von Fisher, bei großen Tafeln Chi-Quadrat</translation>
    </message>
    <message>
        <source>BH: false discoveries</source>
        <translation>BH: falsche Funde</translation>
    </message>
    <message>
        <source>Benjamini and Hochberg: the expected part of false ones among all that are found</source>
        <translation>Benjamini und Hochberg: der erwartete Anteil falscher unter allen gefundenen</translation>
    </message>
    <message>
        <source>Holm: any false one</source>
        <translation>Holm: jeden falschen</translation>
    </message>
    <message>
        <source>Holm: the probability that any found one is false</source>
        <translation>Holm: die Wahrscheinlichkeit, dass irgendein gefundener falsch ist</translation>
    </message>
    <message>
        <source>maxT: any false one</source>
        <translation>maxT: jeden falschen</translation>
    </message>
    <message>
        <source>Westfall and Young: the same by permutations, less strict where parameters hang together</source>
        <translation>Westfall und Young: dasselbe durch Vertauschungen, weniger streng, wo Parameter zusammenhängen</translation>
    </message>
    <message>
        <source>Kolmogorov-Smirnov test, exact for the ties there are</source>
        <translation>Kolmogorow-Smirnow-Test, exakt für die vorhandenen gleichen Werte</translation>
    </message>
    <message>
        <source>Kolmogorov-Smirnov test, the limit for large groups</source>
        <translation>Kolmogorow-Smirnow-Test, Grenzfall großer Gruppen</translation>
    </message>
    <message>
        <source>Mann-Whitney test, exact for the ties there are</source>
        <translation>Mann-Whitney-Test, exakt für die vorhandenen gleichen Werte</translation>
    </message>
    <message>
        <source>Mann-Whitney test, by the normal distribution with ties</source>
        <translation>Mann-Whitney-Test, durch die Normalverteilung mit gleichen Werten</translation>
    </message>
    <message>
        <source>Fisher&apos;s exact test of the counts per value</source>
        <translation>Exakter Test von Fisher für die Anzahlen je Wert</translation>
    </message>
    <message>
        <source>Chi-squared test of the counts per value</source>
        <translation>Chi-Quadrat-Test der Anzahlen je Wert</translation>
    </message>
    <message>
        <source>Permutations of whole parameter sets</source>
        <translation>Vertauschungen ganzer Parametersätze</translation>
    </message>
    <message>
        <source>Permutations of whole base samples</source>
        <translation>Vertauschungen ganzer Grundstichproben</translation>
    </message>
    <message>
        <source>Permutations of whole groups of runs that share values</source>
        <translation>Vertauschungen ganzer Gruppen von Läufen mit gemeinsamen Werten</translation>
    </message>
    <message>
        <source>Permutations of the runs, for the counts per value</source>
        <translation>Permutationen der Läufe, für die Anzahlen je Wert</translation>
    </message>
</context>
<context>
    <name>TextRuns</name>
    <message>
        <source>no row has a time</source>
        <translation>keine Zeile hat eine Zeit</translation>
    </message>
    <message>
        <source>Line %1: the time is missing. Points without a time are left out (%2 in all).</source>
        <translation>Zeile %1: Die Zeit fehlt. Punkte ohne Zeit werden weggelassen (insgesamt %2).</translation>
    </message>
    <message>
        <source>Line %1: a run has a second point at the same time (%2 such points in all).</source>
        <translation>Zeile %1: Ein Lauf hat einen zweiten Punkt zur selben Zeit (insgesamt %2 solche Punkte).</translation>
    </message>
    <message>
        <source>a run has several points at the same time</source>
        <translation>ein Lauf hat mehrere Punkte zur selben Zeit</translation>
    </message>
    <message>
        <source>line %1: a second point of a run at the same time. If a column names the runs, say --run and its name; if one names the items, --item; if the points are of one run, --layout stacked; if the rows have no order, --layout table</source>
        <translation>Zeile %1: ein zweiter Punkt eines Laufs zur selben Zeit. Wenn eine Spalte die Läufe benennt, geben Sie --run und ihren Namen an; wenn eine die Größen benennt, --item; wenn die Punkte von einem Lauf sind, --layout stacked; wenn die Zeilen keine Ordnung haben, --layout table</translation>
    </message>
    <message>
        <source>The time falls from row to row, so the rows are read from the last to the first.</source>
        <translation>Die Zeit fällt von Zeile zu Zeile, daher werden die Zeilen von der letzten zur ersten gelesen.</translation>
    </message>
</context>
<context>
    <name>TidyLayout</name>
    <message>
        <source>%1 says which item a row is of, and %2 has its value</source>
        <translation>%1 sagt, von welcher Größe eine Zeile ist, und %2 hat ihren Wert</translation>
    </message>
    <message>
        <source>no column says which item a row is of; name it by --item</source>
        <translation>keine Spalte sagt, von welcher Größe eine Zeile ist; bitte mit --item nennen</translation>
    </message>
    <message>
        <source>no column is clear to hold the values; name it by --value</source>
        <translation>es ist nicht klar, welche Spalte die Werte enthält; bitte mit --value nennen</translation>
    </message>
    <message>
        <source>the column %1 holds no numbers</source>
        <translation>die Spalte %1 enthält keine Zahlen</translation>
    </message>
</context>
<context>
    <name>TimeCourses</name>
    <message>
        <source>%1, run %2</source>
        <translation>%1, Lauf %2</translation>
    </message>
</context>
<context>
    <name>UnpackLimit</name>
    <message>
        <source>it unpacks to more than %1 times its size, as damaged files do; unpack it before opening it</source>
        <translation>sie entpackt sich auf mehr als das %1fache, wie beschädigte Dateien es tun; entpacken Sie sie vor dem Öffnen</translation>
    </message>
    <message>
        <source>the table does not fit into memory</source>
        <translation>die Tabelle passt nicht in den Speicher</translation>
    </message>
</context>
<context>
    <name>ViewerStyles</name>
    <message>
        <source>XY plot</source>
        <translation>XY-Diagramm</translation>
    </message>
    <message>
        <source>Reserved style 1</source>
        <translation>Reservierte Darstellung 1</translation>
    </message>
    <message>
        <source>Reserved style 2</source>
        <translation>Reservierte Darstellung 2</translation>
    </message>
    <message>
        <source>Scatter-plot matrix</source>
        <translation>Streudiagramm-Matrix</translation>
    </message>
    <message>
        <source>3-D points</source>
        <translation>3D-Punkte</translation>
    </message>
    <message>
        <source>Multi-plot matrix</source>
        <translation>Diagramm-Matrix</translation>
    </message>
    <message>
        <source>Selection CDFs</source>
        <translation>Verteilungen der Auswahl</translation>
    </message>
    <message>
        <source>Scatter with error bars</source>
        <translation>Punkte mit Fehlerbalken</translation>
    </message>
    <message>
        <source>Fit-parameter distributions</source>
        <translation>Verteilungen der Fitparameter</translation>
    </message>
    <message>
        <source>Parallel coordinates</source>
        <translation>Parallele Koordinaten</translation>
    </message>
</context>
<context>
    <name>WideLayout</name>
    <message>
        <source>the names of %1 columns number runs, such as %2</source>
        <translation>die Namen von %1 Spalten zählen Läufe, wie %2</translation>
    </message>
    <message>
        <source>The column %1 is of no run and is left out.</source>
        <translation>Die Spalte %1 gehört zu keinem Lauf und wird ausgelassen.</translation>
    </message>
    <message>
        <source>there are not several columns of numbers that could be runs</source>
        <translation>es gibt nicht mehrere Spalten von Zahlen, die Läufe sein könnten</translation>
    </message>
</context>
<context>
    <name>ZipArchive</name>
    <message>
        <source>%1 in it is damaged or cut short; copy it again</source>
        <translation>%1 darin ist beschädigt oder abgeschnitten; kopieren Sie die Datei noch einmal</translation>
    </message>
    <message>
        <source>the table does not fit into memory</source>
        <translation>die Tabelle passt nicht in den Speicher</translation>
    </message>
    <message>
        <source>the ZIP file is damaged or cut short; copy it again</source>
        <translation>die ZIP-Datei ist beschädigt oder abgeschnitten; kopieren Sie sie noch einmal</translation>
    </message>
    <message>
        <source>the ZIP file holds %1 files; at most %2 are read</source>
        <translation>die ZIP-Datei enthält %1 Dateien; höchstens %2 werden gelesen</translation>
    </message>
    <message>
        <source>it is protected by a password; save it without, or as a table of text</source>
        <translation>sie ist durch ein Passwort geschützt; speichern Sie sie ohne, oder als Texttabelle</translation>
    </message>
    <message>
        <source>%1 in it is too large to be read</source>
        <translation>%1 darin ist zu groß zum Lesen</translation>
    </message>
</context>
<context>
    <name>ZippedText</name>
    <message>
        <source>the ZIP file is empty</source>
        <translation>die ZIP-Datei ist leer</translation>
    </message>
    <message>
        <source>it holds several files (%1); name one with --sheet, or unpack it</source>
        <translation>sie enthält mehrere Dateien (%1); nennen Sie eine mit --sheet, oder entpacken Sie sie</translation>
    </message>
</context>
</TS>
