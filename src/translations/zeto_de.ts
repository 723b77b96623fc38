<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>DeviceTreeModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
</context>
<context>
    <name>FeatureTreeView</name>
    <message>
        <source>Edit Value</source>
        <translation>Wert bearbeiten</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy Value</source>
        <translation>Wert kopieren</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <translation>Namen kopieren</translation>
    </message>
</context>
<context>
    <name>FilterOptions</name>
    <message>
        <source>Filter options</source>
        <translation>Filteroptionen</translation>
    </message>
    <message>
        <source>Case Sensitive</source>
        <translation>Groß-/Kleinschreibung beachten</translation>
    </message>
    <message>
        <source>Whole Words Only</source>
        <translation>Nur ganze Wörter</translation>
    </message>
</context>
<context>
    <name>FloatEditor</name>
    <message>
        <source>%1 is not a number.</source>
        <translation>%1 ist keine Zahl.</translation>
    </message>
</context>
<context>
    <name>GenErrorsDlg</name>
    <message>
        <source>Gen&lt;i&gt;Cam errors</source>
        <translation>Gen&lt;i&gt;Cam-Fehler</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>No Errors</source>
        <translation>Keine Fehler</translation>
    </message>
    <message>
        <source>{%1}{id:%3}: %2 
</source>
        <translation>{%1}{id:%3}: %2 
</translation>
    </message>
</context>
<context>
    <name>GenParamDelegate</name>
    <message>
        <source>The camera did not take the value.</source>
        <translation>Die Kamera hat den Wert nicht angenommen.</translation>
    </message>
    <message>
        <source>The feature cannot be changed at the moment.</source>
        <translation>Das Merkmal kann zurzeit nicht geändert werden.</translation>
    </message>
</context>
<context>
    <name>GenParamTreeModel</name>
    <message>
        <source>Unknown Error</source>
        <translation>Unbekannter Fehler</translation>
    </message>
    <message>
        <source>True</source>
        <translation>Wahr</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Falsch</translation>
    </message>
    <message>
        <source>&lt;i&gt;Name:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;Name:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>Gleitkommazahl</translation>
    </message>
    <message>
        <source>Boolean</source>
        <translation>Wahrheitswert</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>String</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Enumeration</source>
        <translation>Aufzählung</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>Ganzzahl</translation>
    </message>
    <message>
        <source>&lt;i&gt;Type:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;Typ:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Selectors:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;Selektoren:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Limits&lt;/i&gt;: Min: %1, Max: %2</source>
        <translation>&lt;i&gt;Grenzen&lt;/i&gt;: Min: %1, Max: %2</translation>
    </message>
    <message>
        <source>&lt;i&gt;Increment&lt;/i&gt;: %1</source>
        <translation>&lt;i&gt;Schrittweite&lt;/i&gt;: %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Valid values&lt;/i&gt;: %1</source>
        <translation>&lt;i&gt;Gültige Werte&lt;/i&gt;: %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Enumeration entries&lt;/i&gt;:</source>
        <translation>&lt;i&gt;Einträge der Aufzählung&lt;/i&gt;:</translation>
    </message>
    <message>
        <source>&lt;i&gt;Description:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;Beschreibung:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Streamable:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;Speicherbar:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Cachable:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;Zwischenspeicherbar:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Executing...</source>
        <translation>Wird ausgeführt ...</translation>
    </message>
    <message>
        <source>The value does not fit the type of the feature</source>
        <translation>Der Wert passt nicht zum Typ des Merkmals</translation>
    </message>
    <message>
        <source>&lt;Value not available&gt;</source>
        <translation>&lt;Wert nicht verfügbar&gt;</translation>
    </message>
    <message>
        <source>&lt;Value not readable&gt;</source>
        <translation>&lt;Wert nicht lesbar&gt;</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>FEHLER</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>Ausführen</translation>
    </message>
</context>
<context>
    <name>GenParamTreeView</name>
    <message>
        <source>Camera Features</source>
        <translation>Kameramerkmale</translation>
    </message>
    <message>
        <source>Filter by feature name.
Using of wildcard is possible.</source>
        <translation>Nach Merkmalsnamen filtern.
Platzhalter sind möglich.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Filter options</source>
        <translation>Filteroptionen</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>Alle ausklappen</translation>
    </message>
    <message>
        <source>Collapse All</source>
        <translation>Alle einklappen</translation>
    </message>
    <message>
        <source>Visibility:</source>
        <translation>Sichtbarkeit:</translation>
    </message>
    <message>
        <source>Level of feature visibility</source>
        <translation>Sichtbarkeitsstufe der Merkmale</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>Einfach</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>Experte</translation>
    </message>
    <message>
        <source>Guru</source>
        <translation>Guru</translation>
    </message>
    <message>
        <source>Show Error Dialog</source>
        <translation>Fehlerdialog anzeigen</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>Merkmale</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Clear filter</source>
        <translation>Filter löschen</translation>
    </message>
</context>
<context>
    <name>IPv4Editor</name>
    <message>
        <source>&quot;%1&quot; is not an IPv4 address.</source>
        <translation>&quot;%1&quot; ist keine IPv4-Adresse.</translation>
    </message>
</context>
<context>
    <name>InfoView</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy &amp;All</source>
        <translation>&amp;Alles kopieren</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>IntegerEditor</name>
    <message>
        <source>%1 is not a number from %2 to %3.</source>
        <translation>%1 ist keine Zahl von %2 bis %3.</translation>
    </message>
</context>
<context>
    <name>MacEditor</name>
    <message>
        <source>&quot;%1&quot; is not a MAC address.</source>
        <translation>&quot;%1&quot; ist keine MAC-Adresse.</translation>
    </message>
</context>
<context>
    <name>SetIpDialog</name>
    <message>
        <source>Set IP Address</source>
        <translation>IP-Adresse setzen</translation>
    </message>
    <message>
        <source>Network Adapter IP Configuration</source>
        <translation>IP-Konfiguration des Netzwerkadapters</translation>
    </message>
    <message>
        <source>MAC Address</source>
        <translation>MAC-Adresse</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>Subnet Mask</source>
        <translation>Subnetzmaske</translation>
    </message>
    <message>
        <source>Camera IP Configuration</source>
        <translation>IP-Konfiguration der Kamera</translation>
    </message>
    <message>
        <source>IP &amp;Address</source>
        <translation>IP-&amp;Adresse</translation>
    </message>
    <message>
        <source>&amp;Subnet Mask</source>
        <translation>&amp;Subnetzmaske</translation>
    </message>
    <message>
        <source>Default &amp;Gateway</source>
        <translation>Standard-&amp;Gateway</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>IP Configuration OK</source>
        <translation>IP-Konfiguration in Ordnung</translation>
    </message>
    <message>
        <source>Subnet mask mismatch!</source>
        <translation>Subnetzmaske passt nicht!</translation>
    </message>
    <message>
        <source>Incorrect IP address!</source>
        <translation>Falsche IP-Adresse!</translation>
    </message>
    <message>
        <source>Subnet IP mismatch!</source>
        <translation>IP-Adresse passt nicht zum Subnetz!</translation>
    </message>
</context>
<context>
    <name>StringEditor</name>
    <message>
        <source>&quot;%1&quot; does not fit into the feature.</source>
        <translation>&quot;%1&quot; passt nicht in das Merkmal.</translation>
    </message>
</context>
<context>
    <name>ZetoCamConfigAboutDialog</name>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Familie</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Firmware version</source>
        <translation>Firmwareversion</translation>
    </message>
    <message>
        <source>Manufacturer info</source>
        <translation>Herstellerangaben</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>User ID</source>
        <translation>Benutzerkennung</translation>
    </message>
    <message>
        <source>Sensor type</source>
        <translation>Sensortyp</translation>
    </message>
    <message>
        <source>RGS ID</source>
        <translation>RGS-ID</translation>
    </message>
    <message>
        <source>FPGA ID</source>
        <translation>FPGA-ID</translation>
    </message>
    <message>
        <source>EPCS ID</source>
        <translation>EPCS-ID</translation>
    </message>
    <message>
        <source>Firmware image</source>
        <translation>Firmwareabbild</translation>
    </message>
    <message>
        <source>Customer ID</source>
        <translation>Kundenkennung</translation>
    </message>
    <message>
        <source>Family ID</source>
        <translation>Familienkennung</translation>
    </message>
    <message>
        <source>XML version</source>
        <translation>XML-Version</translation>
    </message>
</context>
<context>
    <name>ZetoCamConfigColorDialog</name>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>White Balance</source>
        <translation>Weißabgleich</translation>
    </message>
    <message>
        <source>Tracking Speed</source>
        <translation>Nachführgeschwindigkeit</translation>
    </message>
    <message>
        <source>Manual WB Coef.</source>
        <translation>Manuelle WB-Koeff.</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Unity</source>
        <translation>Eins</translation>
    </message>
    <message>
        <source>Red unity</source>
        <translation>Rot auf eins</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Green unity</source>
        <translation>Grün auf eins</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Blue unity</source>
        <translation>Blau auf eins</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Red coef.:</source>
        <translation>Koeff. Rot:</translation>
    </message>
    <message>
        <source>4095</source>
        <translation>4095</translation>
    </message>
    <message>
        <source>Green coef.:</source>
        <translation>Koeff. Grün:</translation>
    </message>
    <message>
        <source>Blue coef.:</source>
        <translation>Koeff. Blau:</translation>
    </message>
</context>
<context>
    <name>ZetoCamConfigFrameABDialog</name>
    <message>
        <source>Frame A/B</source>
        <translation>Bild A/B</translation>
    </message>
    <message>
        <source>Output mode:</source>
        <translation>Ausgabemodus:</translation>
    </message>
    <message>
        <source>Dual Video:</source>
        <translation>Dual Video:</translation>
    </message>
    <message>
        <source>Frame-A +</source>
        <translation>Bild A +</translation>
    </message>
    <message>
        <source>Frame-B</source>
        <translation>Bild B</translation>
    </message>
    <message>
        <source>Shutter mode:</source>
        <translation>Verschlussmodus:</translation>
    </message>
    <message>
        <source>Rolling</source>
        <translation>Rolling</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>Global</translation>
    </message>
    <message>
        <source>ADC Selector:</source>
        <translation>ADC-Auswahl:</translation>
    </message>
    <message>
        <source>10 bits</source>
        <translation>10 Bit</translation>
    </message>
    <message>
        <source>12 bits</source>
        <translation>12 Bit</translation>
    </message>
    <message>
        <source>Dual Video
Line Time [pclk]:</source>
        <translation>Dual-Video-
Zeilenzeit [pclk]:</translation>
    </message>
    <message>
        <source>Exposure control</source>
        <translation>Belichtungssteuerung</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Trigger</translation>
    </message>
    <message>
        <source>Internal</source>
        <translation>Intern</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Clocks</source>
        <translation>Takte</translation>
    </message>
    <message>
        <source>Exposure Time</source>
        <translation>Belichtungszeit</translation>
    </message>
    <message>
        <source>[%1]:</source>
        <translation>[%1]:</translation>
    </message>
    <message>
        <source>Exposure time</source>
        <translation>Belichtungszeit</translation>
    </message>
    <message>
        <source>Fixed frame period</source>
        <translation>Feste Bildperiode</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Einschalten</translation>
    </message>
    <message>
        <source>Frame line time</source>
        <translation>Zeilenzeit des Bildes</translation>
    </message>
    <message>
        <source>Line Time [pclk]:</source>
        <translation>Zeilenzeit [pclk]:</translation>
    </message>
    <message>
        <source>Frame size</source>
        <translation>Bildgröße</translation>
    </message>
    <message>
        <source>Full Frame</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>QFHD</source>
        <translation>QFHD</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Breite:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Höhe:</translation>
    </message>
    <message>
        <source>OffsetX:</source>
        <translation>OffsetX:</translation>
    </message>
    <message>
        <source>OffsetY:</source>
        <translation>OffsetY:</translation>
    </message>
    <message>
        <source>Current size:</source>
        <translation>Aktuelle Größe:</translation>
    </message>
    <message>
        <source>Subsampling</source>
        <translation>Unterabtastung</translation>
    </message>
    <message>
        <source>Averaging</source>
        <translation>Mittelung</translation>
    </message>
    <message>
        <source>Subsampling:</source>
        <translation>Unterabtastung:</translation>
    </message>
    <message>
        <source>x M:</source>
        <translation>x M:</translation>
    </message>
    <message>
        <source>Averaging:</source>
        <translation>Mittelung:</translation>
    </message>
    <message>
        <source>Video amplifier</source>
        <translation>Videoverstärker</translation>
    </message>
    <message>
        <source>Analog Gain:</source>
        <translation>Analoge Verstärkung:</translation>
    </message>
    <message>
        <source>1x</source>
        <translation>1x</translation>
    </message>
    <message>
        <source>2x</source>
        <translation>2x</translation>
    </message>
    <message>
        <source>4x</source>
        <translation>4x</translation>
    </message>
    <message>
        <source>8x</source>
        <translation>8x</translation>
    </message>
    <message>
        <source>Digital Gain:</source>
        <translation>Digitale Verstärkung:</translation>
    </message>
    <message>
        <source>Black Level:</source>
        <translation>Schwarzwert:</translation>
    </message>
    <message>
        <source>Wide dynamic range</source>
        <translation>Großer Dynamikumfang</translation>
    </message>
    <message>
        <source>P1:</source>
        <translation>P1:</translation>
    </message>
    <message>
        <source>E1</source>
        <translation>E1</translation>
    </message>
    <message>
        <source>P2:</source>
        <translation>P2:</translation>
    </message>
    <message>
        <source>E2</source>
        <translation>E2</translation>
    </message>
    <message>
        <source>P3:</source>
        <translation>P3:</translation>
    </message>
    <message>
        <source>E3</source>
        <translation>E3</translation>
    </message>
    <message>
        <source>Frame A</source>
        <translation>Bild A</translation>
    </message>
    <message>
        <source>Frame B</source>
        <translation>Bild B</translation>
    </message>
    <message>
        <source>Number of Frame-B</source>
        <translation>Anzahl von Bild B</translation>
    </message>
</context>
<context>
    <name>ZetoCamConfigMainWindow</name>
    <message>
        <source>CamConfig</source>
        <translation>CamConfig</translation>
    </message>
    <message>
        <source>Camera Information</source>
        <translation>Kamerainformationen</translation>
    </message>
    <message>
        <source>Frame A</source>
        <translation>Bild A</translation>
    </message>
    <message>
        <source>Frame B</source>
        <translation>Bild B</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Size, Frame A</source>
        <translation>Größe, Bild A</translation>
    </message>
    <message>
        <source>Size, Frame B</source>
        <translation>Größe, Bild B</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source>Frame Rate, Frame A</source>
        <translation>Bildrate, Bild A</translation>
    </message>
    <message>
        <source>Frame Rate, Frame B</source>
        <translation>Bildrate, Bild B</translation>
    </message>
    <message>
        <source>fps</source>
        <translation>fps</translation>
    </message>
    <message>
        <source>Exposure Time</source>
        <translation>Belichtungszeit</translation>
    </message>
    <message>
        <source>Exposure Time, Frame A</source>
        <translation>Belichtungszeit, Bild A</translation>
    </message>
    <message>
        <source>Exposure Time, Frame B</source>
        <translation>Belichtungszeit, Bild B</translation>
    </message>
    <message>
        <source>us</source>
        <translation>us</translation>
    </message>
    <message>
        <source>Frame Time</source>
        <translation>Bilddauer</translation>
    </message>
    <message>
        <source>Frame Time, Frame A</source>
        <translation>Bilddauer, Bild A</translation>
    </message>
    <message>
        <source>Frame Time, Frame B</source>
        <translation>Bilddauer, Bild B</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>C</source>
        <translation>C</translation>
    </message>
    <message>
        <source>Ctrl+1</source>
        <translation>Ctrl+1</translation>
    </message>
    <message>
        <source>Frame A/B</source>
        <translation>Bild A/B</translation>
    </message>
    <message>
        <source>Ctrl+2</source>
        <translation>Ctrl+2</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Trigger</translation>
    </message>
    <message>
        <source>Ctrl+3</source>
        <translation>Ctrl+3</translation>
    </message>
    <message>
        <source>Pulse</source>
        <translation>Puls</translation>
    </message>
    <message>
        <source>Ctrl+4</source>
        <translation>Ctrl+4</translation>
    </message>
    <message>
        <source>Strobe</source>
        <translation>Blitz</translation>
    </message>
    <message>
        <source>Ctrl+5</source>
        <translation>Ctrl+5</translation>
    </message>
    <message>
        <source>Data Out</source>
        <translation>Datenausgabe</translation>
    </message>
    <message>
        <source>Ctrl+6</source>
        <translation>Ctrl+6</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>F1</source>
        <translation>F1</translation>
    </message>
    <message>
        <source>Select a device</source>
        <translation>Ein Gerät wählen</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Getrennt</translation>
    </message>
    <message>
        <source>%1 answers slowly</source>
        <translation>%1 antwortet langsam</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 antwortet nicht</translation>
    </message>
    <message>
        <source>Connection to %1 lost</source>
        <translation>Verbindung zu %1 verloren</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>%1 cannot be opened.</source>
        <translation>%1 kann nicht geöffnet werden.</translation>
    </message>
</context>
<context>
    <name>ZetoCamConfigMapper</name>
    <message>
        <source>Error while working with &apos;%1&apos; parameter!<byte value="xd"/>
Description: %2</source>
        <translation>Fehler beim Zugriff auf den Parameter &apos;%1&apos;!<byte value="xd"/>
Beschreibung: %2</translation>
    </message>
</context>
<context>
    <name>ZetoCamConfigOutputDialog</name>
    <message>
        <source>Data Output</source>
        <translation>Datenausgabe</translation>
    </message>
    <message>
        <source>Camera Link Output</source>
        <translation>Camera-Link-Ausgabe</translation>
    </message>
    <message>
        <source>Taps:</source>
        <translation>Taps:</translation>
    </message>
    <message>
        <source>Depth:</source>
        <translation>Tiefe:</translation>
    </message>
    <message>
        <source>Corrections</source>
        <translation>Korrekturen</translation>
    </message>
    <message>
        <source>DPC:</source>
        <translation>DPC:</translation>
    </message>
    <message>
        <source>HPC:</source>
        <translation>HPC:</translation>
    </message>
    <message>
        <source>Pixel Type</source>
        <translation>Pixeltyp</translation>
    </message>
    <message>
        <source>Pixel Format:</source>
        <translation>Pixelformat:</translation>
    </message>
    <message>
        <source>Image Flip</source>
        <translation>Bild spiegeln</translation>
    </message>
    <message>
        <source>H.Mirror</source>
        <translation>H. spiegeln</translation>
    </message>
    <message>
        <source>V.Mirror</source>
        <translation>V. spiegeln</translation>
    </message>
    <message>
        <source>LUT Settings</source>
        <translation>LUT-Einstellungen</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Einschalten</translation>
    </message>
    <message>
        <source>LUT</source>
        <translation>LUT</translation>
    </message>
    <message>
        <source>Test Mode</source>
        <translation>Testmodus</translation>
    </message>
    <message>
        <source>Test Pattern:</source>
        <translation>Testbild:</translation>
    </message>
    <message>
        <source>Dyn.Thres.:</source>
        <translation>Dyn. Schwelle:</translation>
    </message>
</context>
<context>
    <name>ZetoCamConfigPulseDialog</name>
    <message>
        <source>Pulse Control</source>
        <translation>Pulssteuerung</translation>
    </message>
    <message>
        <source>Internal Pulse Generator</source>
        <translation>Interner Pulsgenerator</translation>
    </message>
    <message>
        <source>Timing of the pulses</source>
        <translation>Zeitverlauf der Pulse</translation>
    </message>
    <message>
        <source>Granularity:</source>
        <translation>Auflösung:</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Periode</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Verzögerung</translation>
    </message>
    <message>
        <source>Freq. [Hz]:</source>
        <translation>Freq. [Hz]:</translation>
    </message>
    <message>
        <source>Number of Pulses</source>
        <translation>Anzahl der Pulse</translation>
    </message>
    <message>
        <source>Continious</source>
        <translation>Dauernd</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Verarbeitung</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Ctrl+Shift+S, Ctrl+Shift+S</source>
        <translation>Ctrl+Shift+S, Ctrl+Shift+S</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source> [%1s]:</source>
        <translation> [%1s]:</translation>
    </message>
</context>
<context>
    <name>ZetoCamConfigStrobeDialog</name>
    <message>
        <source>Strobe Control</source>
        <translation>Blitzsteuerung</translation>
    </message>
    <message>
        <source>Strobe 1</source>
        <translation>Blitz 1</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Modus:</translation>
    </message>
    <message>
        <source>Reference:</source>
        <translation>Bezug:</translation>
    </message>
    <message>
        <source>Strobe 2</source>
        <translation>Blitz 2</translation>
    </message>
    <message>
        <source>Timing of the strobes</source>
        <translation>Zeitverlauf der Blitze</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgang</translation>
    </message>
    <message>
        <source>Out1:</source>
        <translation>Out1:</translation>
    </message>
    <message>
        <source>Out1 polarity</source>
        <translation>Polarität Out1</translation>
    </message>
    <message>
        <source>Out2:</source>
        <translation>Out2:</translation>
    </message>
    <message>
        <source>Out2 polarity</source>
        <translation>Polarität Out2</translation>
    </message>
    <message>
        <source>Delay [%1s]:</source>
        <translation>Verzögerung [%1s]:</translation>
    </message>
    <message>
        <source>Width [%1s]:</source>
        <translation>Breite [%1s]:</translation>
    </message>
</context>
<context>
    <name>ZetoCamConfigTriggerDialog</name>
    <message>
        <source>Trigger Control</source>
        <translation>Triggersteuerung</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Einschalten</translation>
    </message>
    <message>
        <source>Trigger Source:</source>
        <translation>Triggerquelle:</translation>
    </message>
    <message>
        <source>Edge:</source>
        <translation>Flanke:</translation>
    </message>
    <message>
        <source>Debounce:</source>
        <translation>Entprellung:</translation>
    </message>
    <message>
        <source>Software
Trigger</source>
        <translation>Software-
Trigger</translation>
    </message>
</context>
<context>
    <name>ZetoCameraSelectorDialog</name>
    <message>
        <source>Select camera</source>
        <translation>Kamera wählen</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Kameras</translation>
    </message>
    <message>
        <source>&amp;Interface info</source>
        <translation>&amp;Schnittstelle</translation>
    </message>
    <message>
        <source>Interface info</source>
        <translation>Schnittstelle</translation>
    </message>
    <message>
        <source>&amp;Device info</source>
        <translation>&amp;Gerät</translation>
    </message>
    <message>
        <source>Device info</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Set IP Address</source>
        <translation>IP-Adresse setzen</translation>
    </message>
    <message>
        <source>Polling</source>
        <translation>Laufend suchen</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>Anzeigename</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Access status</source>
        <translation>Zugriffsstatus</translation>
    </message>
    <message>
        <source>USB Version</source>
        <translation>USB-Version</translation>
    </message>
    <message>
        <source>MAC Address</source>
        <translation>MAC-Adresse</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>Netmask</source>
        <translation>Netzmaske</translation>
    </message>
    <message>
        <source>Gateway</source>
        <translation>Gateway</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>ReadWrite</source>
        <translation>Lesen und Schreiben</translation>
    </message>
    <message>
        <source>ReadOnly</source>
        <translation>Nur Lesen</translation>
    </message>
    <message>
        <source>NO ACCESS</source>
        <translation>KEIN ZUGRIFF</translation>
    </message>
    <message>
        <source>IP Subnet Mismatch</source>
        <translation>Falsches IP-Subnetz</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>USB3 Vision</source>
        <translation>USB3 Vision</translation>
    </message>
    <message>
        <source>GigE Vision</source>
        <translation>GigE Vision</translation>
    </message>
    <message>
        <source>CameraLink</source>
        <translation>CameraLink</translation>
    </message>
    <message>
        <source>CoaXPress</source>
        <translation>CoaXPress</translation>
    </message>
    <message>
        <source>HD-SDI</source>
        <translation>HD-SDI</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>IP Configuration Warning</source>
        <translation>Warnung zur IP-Konfiguration</translation>
    </message>
    <message>
        <source>Specified IP Configuraion is not correct, camera may become undiscoverable
Press OK to skip the IP Configuration, or press Ignore to confirm</source>
        <translation>Die angegebene IP-Konfiguration ist nicht richtig, die Kamera könnte unauffindbar werden.
OK lässt die IP-Konfiguration aus, Ignorieren bestätigt sie.</translation>
    </message>
</context>
<context>
    <name>ZetoGui::AboutDialog</name>
    <message>
        <source>%1 %2 Zeto. All rights reserved.</source>
        <translation>%1 %2 Zeto. Alle Rechte vorbehalten.</translation>
    </message>
</context>
<context>
    <name>ZetoGui::ZetoCameraSelectorDialog</name>
    <message>
        <source>&amp;Rescan</source>
        <translation>&amp;Neu suchen</translation>
    </message>
    <message>
        <source>Set IP Address</source>
        <translation>IP-Adresse setzen</translation>
    </message>
    <message>
        <source>Can&apos;t set IP address</source>
        <translation>IP-Adresse kann nicht gesetzt werden</translation>
    </message>
</context>
</TS>
