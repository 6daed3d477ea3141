-- The example project: a residential building of five storeys. Loads of ribbed slabs are per rib.

INSERT INTO Proyecto VALUES ('EDIFICIO RESIDENCIAS LA CEIBA', 'INVERSIONES LA CEIBA, C.A.', 'ING. MARÍA NÚÑEZ',
    '2024-03-15', 'CONDOMINIO LA CEIBA', 'Cinco plantas y techo; losas nervadas en una dirección');

INSERT INTO LosaG VALUES (250, 4200, 0.025, 1.2, 1.6, 0.9, 0.75);

INSERT INTO LosaDatos VALUES ('L-1 PLANTA BAJA', 0, 0.1, 0.25, 0.5, 1, 0.2, 0.05);
INSERT INTO LosaTramos VALUES
    ('L-1 PLANTA BAJA', 1, 5.2, 290, 90, NULL, NULL),
    ('L-1 PLANTA BAJA', 2, 4.8, 290, 90, NULL, NULL),
    ('L-1 PLANTA BAJA', 3, 5.2, 290, 90, NULL, NULL);
INSERT INTO LosaEjes VALUES
    ('L-1 PLANTA BAJA', 1, 'A', 1, 0, 0, 0),
    ('L-1 PLANTA BAJA', 2, 'B', 2, 0, 0, 0),
    ('L-1 PLANTA BAJA', 3, 'C', 2, 0, 0, 0),
    ('L-1 PLANTA BAJA', 4, 'D', 2, 0, 0, 0);

INSERT INTO LosaDatos VALUES ('L-2 NIVEL 1, EJES 1 A 5', 0, 0.1, 0.25, 0.5, 1, 0.2, 0.05);
INSERT INTO LosaTramos VALUES
    ('L-2 NIVEL 1, EJES 1 A 5', 1, 4.6, 300, 90, NULL, NULL),
    ('L-2 NIVEL 1, EJES 1 A 5', 2, 5.4, 300, 90, NULL, NULL),
    ('L-2 NIVEL 1, EJES 1 A 5', 3, 5.4, 300, 90, 450, 2.1),
    ('L-2 NIVEL 1, EJES 1 A 5', 4, 4.6, 300, 90, NULL, NULL);
INSERT INTO LosaEjes VALUES
    ('L-2 NIVEL 1, EJES 1 A 5', 1, '1', 1, 0, 0, 0),
    ('L-2 NIVEL 1, EJES 1 A 5', 2, '2', 2, 0, 0, 0),
    ('L-2 NIVEL 1, EJES 1 A 5', 3, '3', 2, 0, 0, 0),
    ('L-2 NIVEL 1, EJES 1 A 5', 4, '4', 2, 0, 0, 0),
    ('L-2 NIVEL 1, EJES 1 A 5', 5, '5', 2, 0, 0, 0);

INSERT INTO LosaDatos VALUES ('L-3 NIVEL 1, BALCÓN', 1, 0.1, 0.25, 0.5, 1, 0.15, 0.05);
INSERT INTO LosaTramos VALUES
    ('L-3 NIVEL 1, BALCÓN', 1, 3.6, 520, 300, NULL, NULL),
    ('L-3 NIVEL 1, BALCÓN', 2, 1.4, 560, 300, 180, 1.4);
INSERT INTO LosaEjes VALUES
    ('L-3 NIVEL 1, BALCÓN', 1, 'B', 1, 0, 0, 0),
    ('L-3 NIVEL 1, BALCÓN', 2, 'C', 2, 0, 0, 0),
    ('L-3 NIVEL 1, BALCÓN', 3, 'C''', 5, 0, 0, 0);

INSERT INTO LosaDatos VALUES ('L-4 NIVEL 2, OCHO TRAMOS', 0, 0.1, 0.3, 0.5, 1, 0.2, 0.05);
INSERT INTO LosaTramos VALUES
    ('L-4 NIVEL 2, OCHO TRAMOS', 1, 4.2, 310, 100, NULL, NULL),
    ('L-4 NIVEL 2, OCHO TRAMOS', 2, 5.0, 310, 100, NULL, NULL),
    ('L-4 NIVEL 2, OCHO TRAMOS', 3, 5.0, 310, 100, NULL, NULL),
    ('L-4 NIVEL 2, OCHO TRAMOS', 4, 6.2, 310, 100, NULL, NULL),
    ('L-4 NIVEL 2, OCHO TRAMOS', 5, 6.2, 310, 100, NULL, NULL),
    ('L-4 NIVEL 2, OCHO TRAMOS', 6, 5.0, 310, 100, NULL, NULL),
    ('L-4 NIVEL 2, OCHO TRAMOS', 7, 5.0, 310, 100, NULL, NULL),
    ('L-4 NIVEL 2, OCHO TRAMOS', 8, 4.2, 310, 100, NULL, NULL);
INSERT INTO LosaEjes VALUES
    ('L-4 NIVEL 2, OCHO TRAMOS', 1, '1', 1, 0, 0, 0),
    ('L-4 NIVEL 2, OCHO TRAMOS', 2, '2', 2, 0, 0, 0),
    ('L-4 NIVEL 2, OCHO TRAMOS', 3, '3', 2, 0, 0, 0),
    ('L-4 NIVEL 2, OCHO TRAMOS', 4, '4', 2, 0, 0, 0),
    ('L-4 NIVEL 2, OCHO TRAMOS', 5, '5', 2, 0, 0, 0),
    ('L-4 NIVEL 2, OCHO TRAMOS', 6, '6', 2, 0, 0, 0),
    ('L-4 NIVEL 2, OCHO TRAMOS', 7, '7', 2, 0, 0, 0),
    ('L-4 NIVEL 2, OCHO TRAMOS', 8, '8', 2, 0, 0, 0),
    ('L-4 NIVEL 2, OCHO TRAMOS', 9, '9', 2, 0, 0, 0);

INSERT INTO LosaDatos VALUES ('L-5 NIVEL 3, DESNIVEL', 0, 0.1, 0.25, 0.5, 1, 0.2, 0.05);
INSERT INTO LosaTramos VALUES
    ('L-5 NIVEL 3, DESNIVEL', 1, 4.5, 290, 90, NULL, NULL),
    ('L-5 NIVEL 3, DESNIVEL', 2, 1.2, 290, 90, NULL, NULL),
    ('L-5 NIVEL 3, DESNIVEL', 3, 4.5, 290, 90, NULL, NULL);
INSERT INTO LosaEjes VALUES
    ('L-5 NIVEL 3, DESNIVEL', 1, 'A', 1, 0, 0, 0),
    ('L-5 NIVEL 3, DESNIVEL', 2, 'B', 2, 0, 0, 0),
    ('L-5 NIVEL 3, DESNIVEL', 3, 'B1', 2, 0, 0, 0),
    ('L-5 NIVEL 3, DESNIVEL', 4, 'C', 2, 0, 0, 0);
INSERT INTO LosaJuntasD VALUES
    ('L-5 NIVEL 3, DESNIVEL', 3, 0, 0.45),
    ('L-5 NIVEL 3, DESNIVEL', 4, 0, 0.45);

INSERT INTO LosaDatos VALUES ('L-6 NIVEL 4, EMPOTRADA', 1, 0.1, 0.25, 0.5, 1, 0.2, 0.05);
INSERT INTO LosaTramos VALUES
    ('L-6 NIVEL 4, EMPOTRADA', 1, 4.0, 600, 250, NULL, NULL),
    ('L-6 NIVEL 4, EMPOTRADA', 2, 4.4, 600, 250, NULL, NULL);
INSERT INTO LosaEjes VALUES
    ('L-6 NIVEL 4, EMPOTRADA', 1, '1', 4, 0, 0, 0),
    ('L-6 NIVEL 4, EMPOTRADA', 2, '2', 2, 0, 0, 0),
    ('L-6 NIVEL 4, EMPOTRADA', 3, '3', 2, 0, 0, 0);

INSERT INTO LosaDatos VALUES ('L-7 TECHO', 0, 0.1, 0.2, 0.5, 1, 0.2, 0.05);
INSERT INTO LosaTramos VALUES
    ('L-7 TECHO', 1, 5.0, 240, 50, NULL, NULL),
    ('L-7 TECHO', 2, 5.0, 240, 50, NULL, NULL);
INSERT INTO LosaEjes VALUES
    ('L-7 TECHO', 1, 'A', 1, 0, 0, 0),
    ('L-7 TECHO', 2, 'B', 2, 0, 0, 0),
    ('L-7 TECHO', 3, 'C', 2, 0, 0, 0);

INSERT INTO LosaDatos VALUES ('L-8 SALA DE MÁQUINAS', 1, 0.1, 0.25, 0.5, 1, 0.2, 0.05);
INSERT INTO LosaTramos VALUES
    ('L-8 SALA DE MÁQUINAS', 1, 3.2, 680, 500, 2500, 1.6);
INSERT INTO LosaEjes VALUES
    ('L-8 SALA DE MÁQUINAS', 1, '2', 1, 0, 0, 0),
    ('L-8 SALA DE MÁQUINAS', 2, '3', 2, 0, 0, 0);

INSERT INTO LosaDatos VALUES ('L-9 RAMPA DE ACCESO', 1, 0.1, 0.25, 0.5, 1, 0.18, 0.05);
INSERT INTO LosaTramos VALUES
    ('L-9 RAMPA DE ACCESO', 1, 4.0, 560, 500, NULL, NULL),
    ('L-9 RAMPA DE ACCESO', 2, 4.0, 560, 500, NULL, NULL);
INSERT INTO LosaEjes VALUES
    ('L-9 RAMPA DE ACCESO', 1, 'R1', 1, 0, 0, 0),
    ('L-9 RAMPA DE ACCESO', 2, 'R2', 2, 0, 0, 0),
    ('L-9 RAMPA DE ACCESO', 3, 'R3', 2, 0, 0, 0);
INSERT INTO LosaJuntasD VALUES
    ('L-9 RAMPA DE ACCESO', 2, 0, -0.5),
    ('L-9 RAMPA DE ACCESO', 3, 0, -1.0);


-- Stairs of the building: the main one and the service one, with stirrups for torsion near their supports; the
-- emergency one, which needs none; that of the auditorium, whose landing fails in shear; that of the lobby, which
-- takes steel in compression at its supports and 1/2" stirrups; a spiral to the roof and another
-- in the lobby.

INSERT INTO EscaleraTG VALUES (250, 4200, 0.025, 0.9, 0.75, 1.55);
INSERT INTO EscaleraTDatos VALUES
    ('E-1 PRINCIPAL', 'ESCALERA PRINCIPAL, PLANTA TIPO'),
    ('E-2 SERVICIO', 'ESCALERA DE SERVICIO, PLANTA BAJA'),
    ('E-3 EMERGENCIA', 'ESCALERA DE EMERGENCIA'),
    ('E-4 AUDITORIO', 'ESCALERA DEL AUDITORIO'),
    ('E-5 VESTÍBULO', 'ESCALERA DEL VESTÍBULO');
INSERT INTO EscaleraT VALUES
    ('E-1 PRINCIPAL', 2.7, 1.5, 3, 0.2, 0.2, 2076, 1865, 1040),
    ('E-2 SERVICIO', 2.4, 1.2, 3, 0.18, 0.18, 1340, 1190, 640),
    ('E-3 EMERGENCIA', 1.8, 0.9, 2.4, 0.25, 0.2, 700, 600, 350),
    ('E-4 AUDITORIO', 4, 2, 3, 0.25, 0.15, 2600, 3000, 1500),
    ('E-5 VESTÍBULO', 3.6, 1.4, 2.8, 0.12, 0.15, 2400, 2200, 1200);

INSERT INTO EscaleraHG VALUES (250, 4200, 0.025, 0.9, 0.75, 1.55);
INSERT INTO EscaleraHDatos VALUES
    ('H-1 VESTÍBULO', 'ESCALERA HELICOIDAL DEL VESTÍBULO'),
    ('H-2 AZOTEA', 'CARACOL DE ACCESO A LA AZOTEA'),
    ('H-3 VIGA MIRADOR', 'VIGA HELICOIDAL DEL MIRADOR, CON ESTRIBOS DE 1/2"'),
    ('H-4 BIBLIOTECA', 'ESCALERA HELICOIDAL DE LA BIBLIOTECA, INTERVALO DE 7º'),
    ('H-5 TORRE', 'ESCALERA DE LA TORRE, UNA VUELTA COMPLETA'),
    ('H-6 VIGA BALCÓN', 'VIGA CURVA SIN DESNIVEL DEL BALCÓN'),
    ('H-7 VIGA CUADRADA', 'VIGA HELICOIDAL DE SECCIÓN CUADRADA');
INSERT INTO EscaleraH VALUES
    ('H-1 VESTÍBULO', 1.5, 0.25, 3.2, 2.5, 260, 1650, 5),
    ('H-2 AZOTEA', 0.9, 0.2, 2.7, 1.2, 210, 980, 10),
    ('H-3 VIGA MIRADOR', 0.4, 0.6, 3, 3, 180, 4000, 10),
    ('H-4 BIBLIOTECA', 1.3, 0.22, 2.9, 2, 250, 1350, 7),
    ('H-5 TORRE', 1.2, 0.25, 3.6, 1.8, 360, 1200, 15),
    ('H-6 VIGA BALCÓN', 0.4, 0.6, 0, 4, 120, 2600, 5),
    ('H-7 VIGA CUADRADA', 0.45, 0.45, 3.2, 2.4, 225, 1500, 9);

-- Two-way panels of two levels.

INSERT INTO MarcusDatos VALUES ('NIVEL 1', 5), ('TECHO', 3);
INSERT INTO Marcus VALUES
    ('NIVEL 1', 1, 840, 4, 4.6, 5.2),
    ('NIVEL 1', 2, 840, 5, 5.4, 5.2),
    ('NIVEL 1', 3, 840, 7, 5.4, 4.8),
    ('NIVEL 1', 4, 910, 1, 4.6, 4.6),
    ('NIVEL 1', 5, 910, 9, 4.6, 3.8),
    ('TECHO', 1, 560, 1, 5, 5),
    ('TECHO', 2, 560, 6, 5, 4.2),
    ('TECHO', 3, 620, 8, 3.6, 4.2);

-- Load analyses of the floors above.

INSERT INTO AnalisisCargaG (ID, Descripcion) VALUES
    (2741, 'ENTREPISO TIPO'),
    (6120, 'ENTREPISO DE OFICINAS'),
    (8893, 'TECHO');

INSERT INTO AnalisisCargaCP VALUES
    (2741, 1, 'Losa nervada con bloques de arcilla, h = 25 cm', 315),
    (2741, 2, 'Pavimento de cerámica sobre mortero, e = 5 cm', 100),
    (2741, 3, 'Friso de mortero, e = 1.5 cm', 30),
    (2741, 4, 'Tabiquería de bloques de arcilla, e = 10 cm, repartida', 150),
    (6120, 1, 'Losa nervada con bloques de poliestireno, h = 30 cm', 255),
    (6120, 2, 'Pavimento de porcelanato sobre mortero, e = 5 cm', 110),
    (6120, 3, 'Cielo raso de fibra mineral con entramado', 10),
    (6120, 4, 'Ductos de aire acondicionado', 15),
    (6120, 5, 'Tabiquería liviana de yeso y cartón, repartida', 50),
    (8893, 1, 'Losa nervada con bloques de arcilla, h = 20 cm', 270),
    (8893, 2, 'Mortero de pendiente, e media = 5 cm', 105),
    (8893, 3, 'Impermeabilización con manto asfáltico doble', 10),
    (8893, 4, 'Friso de yeso, e = 1.5 cm', 20);

INSERT INTO AnalisisCargaCV VALUES
    (2741, 'Viviendas', 175),
    (6120, 'Oficinas', 250),
    (8893, 'Techos sin acceso', 100);

-- Totals as a save of each analysis sets them.
UPDATE AnalisisCargaG SET
    CP = (SELECT TOTAL(Peso) FROM AnalisisCargaCP WHERE AnalisisCargaCP.ID = AnalisisCargaG.ID),
    CV = (SELECT Peso FROM AnalisisCargaCV WHERE AnalisisCargaCV.ID = AnalisisCargaG.ID);
UPDATE AnalisisCargaG SET Carga = CP + CV, REL = CV / CP;
