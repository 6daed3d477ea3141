-- A project without data. Names compare without regard to case: the store orders them by itself.

-- The mark of a project, and its format: store/proyecto knows how to come here from an earlier one.
PRAGMA application_id = 1414679635;
PRAGMA user_version = 1;

CREATE TABLE Proyecto (
    Proyecto TEXT(120),
    Propietario TEXT(120),
    Calculista TEXT(120),
    Fecha DATE,
    Cliente TEXT(120),
    Comentario TEXT(255)
);

-- Slabs

CREATE TABLE LosaG (
    FC SMALLINT,
    FY SMALLINT,
    D8 DOUBLE,
    FCP DOUBLE,
    FCV DOUBLE,
    FiMomento DOUBLE,
    FiCorte DOUBLE
);

CREATE TABLE LosaDatos (
    Nombre TEXT(60) COLLATE NOCASE,
    OpcionMaciza BOOLEAN,
    Bo DOUBLE,
    Ho DOUBLE,
    So DOUBLE,
    Bm DOUBLE,
    Hm DOUBLE,
    Loseta DOUBLE
);

CREATE TABLE LosaTramos (
    Nombre TEXT(60) COLLATE NOCASE,
    Numero SMALLINT,
    LT DOUBLE,
    Wp INTEGER,
    WV INTEGER,
    p1 INTEGER,
    L1 DOUBLE
);

CREATE TABLE LosaEjes (
    Nombre TEXT(60) COLLATE NOCASE,
    Numero SMALLINT,
    Eje TEXT(20) COLLATE NOCASE,
    Tipo SMALLINT,
    Lizq DOUBLE,
    Lder DOUBLE,
    HV DOUBLE
);

CREATE TABLE LosaJuntasD (
    Nombre TEXT(60) COLLATE NOCASE,
    Junta SMALLINT,
    x DOUBLE,
    y DOUBLE
);

-- Self-supporting stairs

CREATE TABLE EscaleraTDatos (
    Nombre TEXT(60) COLLATE NOCASE,
    Titulo TEXT(120)
);

CREATE TABLE EscaleraT (
    Nombre TEXT(60) COLLATE NOCASE,
    L DOUBLE,
    B DOUBLE,
    H DOUBLE,
    HT DOUBLE,
    Hd DOUBLE,
    WT INTEGER,
    Wd INTEGER,
    WpD INTEGER
);

CREATE TABLE EscaleraTG (
    FC SMALLINT,
    FY SMALLINT,
    D8 DOUBLE,
    FiMomento DOUBLE,
    FiCorte DOUBLE,
    FS DOUBLE
);

-- Helical stairs and beams

CREATE TABLE EscaleraHDatos (
    Nombre TEXT(60) COLLATE NOCASE,
    Titulo TEXT(120)
);

CREATE TABLE EscaleraH (
    Nombre TEXT(60) COLLATE NOCASE,
    B DOUBLE,
    T DOUBLE,
    H DOUBLE,
    R DOUBLE,
    Angulo DOUBLE,
    W INTEGER,
    Inter SMALLINT
);

CREATE TABLE EscaleraHG (
    FC SMALLINT,
    FY SMALLINT,
    D8 DOUBLE,
    FiMomento DOUBLE,
    FiCorte DOUBLE,
    FS DOUBLE
);

-- Markus coefficients

CREATE TABLE MarcusDatos (
    Nombre TEXT(60) COLLATE NOCASE,
    Paños SMALLINT
);

CREATE TABLE Marcus (
    Nombre TEXT(60) COLLATE NOCASE,
    Numero SMALLINT,
    Carga DOUBLE,
    Caso SMALLINT,
    LX DOUBLE,
    LY DOUBLE
);

-- Load tallies

CREATE TABLE AnalisisCargaG (
    ID INTEGER,
    Descripcion TEXT(120) COLLATE NOCASE,
    Carga DOUBLE,
    CP DOUBLE,
    CV INTEGER,
    REL DOUBLE
);

CREATE TABLE AnalisisCargaCP (
    ID INTEGER,
    Numero SMALLINT,
    Descripcion TEXT(120) COLLATE NOCASE,
    Peso INTEGER
);

CREATE TABLE AnalisisCargaCV (
    ID INTEGER,
    Descripcion TEXT(120) COLLATE NOCASE,
    Peso INTEGER
);
