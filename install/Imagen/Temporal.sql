-- The scratch database of reports, empty: flat rows made for one report, which its layout reads.

CREATE TABLE Generales (
    Usuario TEXT,
    Version TEXT,
    Titulo TEXT,
    Propietario TEXT,
    Calculista TEXT,
    Fecha DATE,
    Proyecto TEXT,
    Nombre TEXT,
    Resumen BOOLEAN
);

-- Drawings of slabs and of self-supporting stairs; loads are the stairs'

CREATE TABLE Grafico (
    Numero SMALLINT,
    Nombre TEXT,
    Losa TEXT,
    CargaTramo DOUBLE,
    CargaVolado DOUBLE,
    CargaPermanente DOUBLE,
    Grafico BLOB,
    GraficoPng BLOB, -- the same picture, compressed
    GraficoTrazos BLOB -- the strokes it was drawn with
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
    Nombre TEXT COLLATE NOCASE,
    OpcionMaciza BOOLEAN,
    Bo DOUBLE,
    Ho DOUBLE,
    So DOUBLE,
    Bm DOUBLE,
    Hm DOUBLE
);

CREATE TABLE LosaEjes (
    Nombre TEXT COLLATE NOCASE,
    Numero SMALLINT,
    Eje TEXT,
    Tipo SMALLINT,
    x DOUBLE,
    y DOUBLE,
    DX DOUBLE,
    DY DOUBLE,
    Giro DOUBLE,
    AS1 DOUBLE,
    AS2 DOUBLE,
    MczI DOUBLE,
    MczD DOUBLE,
    PtoI DOUBLE,
    PtoD DOUBLE,
    RV DOUBLE,
    RH DOUBLE
);

CREATE TABLE LosaTramos (
    Nombre TEXT COLLATE NOCASE,
    Numero SMALLINT,
    EjeA TEXT,
    EjeB TEXT,
    TipoA SMALLINT,
    TipoB SMALLINT,
    MuA DOUBLE,
    MuB DOUBLE,
    VuA DOUBLE,
    VuB DOUBLE,
    VA DOUBLE,
    FA DOUBLE,
    VB DOUBLE,
    FB DOUBLE,
    VACP DOUBLE,
    FACP DOUBLE,
    VBCP DOUBLE,
    FBCP DOUBLE,
    VACV DOUBLE,
    FACV DOUBLE,
    VBCV DOUBLE,
    FBCV DOUBLE,
    MT DOUBLE,
    x DOUBLE,
    AS1 DOUBLE,
    AS2 DOUBLE,
    AS1A DOUBLE,
    AS2A DOUBLE,
    AS1B DOUBLE,
    AS2B DOUBLE,
    PtoA DOUBLE,
    PtoB DOUBLE,
    MczA DOUBLE,
    Mczb DOUBLE,
    L DOUBLE
);

-- Helical stairs and beams: data and results, stations, and the lines of the panels as they are shown

CREATE TABLE EscaleraH (
    Nombre TEXT COLLATE NOCASE,
    B DOUBLE,
    T DOUBLE,
    H DOUBLE,
    Angulo DOUBLE,
    R DOUBLE,
    W INTEGER,
    Inter SMALLINT,
    L DOUBLE,
    Alfa DOUBLE,
    FV INTEGER,
    Fh INTEGER
);

CREATE TABLE EscaleraHS (
    Nombre TEXT COLLATE NOCASE,
    Inter SMALLINT,
    N DOUBLE,
    QX DOUBLE,
    QY DOUBLE,
    MI1 DOUBLE,
    MS1 DOUBLE,
    MX DOUBLE,
    MY DOUBLE,
    MT DOUBLE,
    TU DOUBLE,
    ASXS DOUBLE,
    ASXI DOUBLE,
    AsY DOUBLE,
    AsT DOUBLE,
    LON DOUBLE,
    SEP SMALLINT,
    ASMin DOUBLE
);

CREATE TABLE EscaleraH1S (
    Nombre TEXT COLLATE NOCASE,
    Numero SMALLINT,
    Inter SMALLINT,
    N DOUBLE,
    QX DOUBLE,
    QY DOUBLE,
    MXI DOUBLE,
    MXS DOUBLE,
    MY DOUBLE,
    MT DOUBLE,
    VT DOUBLE,
    ASXI DOUBLE,
    ASXS DOUBLE,
    AsY DOUBLE,
    Estribos TEXT
);

-- Markus coefficients

CREATE TABLE Marcus (
    Numero SMALLINT,
    Carga DOUBLE,
    Caso SMALLINT,
    LX DOUBLE,
    LY DOUBLE,
    CX DOUBLE,
    CY DOUBLE,
    WX DOUBLE,
    WY DOUBLE
);

-- Load tallies

CREATE TABLE AnalisisCargaG (
    ID INTEGER,
    Descripcion TEXT COLLATE NOCASE,
    Carga DOUBLE,
    CP DOUBLE,
    CV INTEGER,
    REL DOUBLE
);

CREATE TABLE AnalisisCargaCP (
    ID INTEGER,
    Numero SMALLINT,
    Descripcion TEXT COLLATE NOCASE,
    Peso INTEGER
);

CREATE TABLE AnalisisCargaCV (
    ID INTEGER,
    Descripcion TEXT COLLATE NOCASE,
    Peso INTEGER
);
