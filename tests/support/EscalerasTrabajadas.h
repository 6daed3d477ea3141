#pragma once

#include <array>
#include <cstdint>

#include "helical/DatosEscaleraH.h"
#include "helical/ResultadosEscaleraH.h"
#include "stairs/DatosEscaleraT.h"
#include "stairs/ResultadosEscaleraT.h"
#include "support/SeccionesDeReferencia.h"

/// A stair and a helix worked apart from the program, in 30 digits: forces by least work, steel from the
/// equations of the sections. Forces in kgf, moments in kgf·m, steel in cm², spacings in cm.
namespace trabex::prueba {

inline constexpr GeneralesDeReferencia GeneralesTrabajados{210, 2800, 0.03, 0.85, 1.7};

inline escaleras::DatosEscaleraT EscaleraTTrabajada() {
    return {"", "", 2.8, 1.3, 3.4, 0.16, 0.21, 2300, 2600, 900};
}
/// Stations of its flight from the landing to the support: both load cases rule somewhere, both bars are
/// carried over. The columns after the station: moments and shears of both loads, axial force, lateral
/// moment, torsion, steel above, below, of torsion and of the side, spacing and leg of the stirrups.
using EscaleraTramo = escaleras::EscaleraTramoPunto;
inline constexpr double EscaleraTramo::*ColumnasDeTramo[]{
    &EscaleraTramo::MomentoTotal, &EscaleraTramo::MomentoPermanente,
    &EscaleraTramo::CorteTotal,   &EscaleraTramo::CortePermanente,
    &EscaleraTramo::Axial,        &EscaleraTramo::MomentoY,
    &EscaleraTramo::Torsor,       &EscaleraTramo::AsSuperior,
    &EscaleraTramo::AsInferior,   &EscaleraTramo::AsTorsion,
    &EscaleraTramo::AsY,          &EscaleraTramo::SeparacionEstribo,
    &EscaleraTramo::AreaEstribo};
inline constexpr std::array<double, 14> TramosTrabajados[]{
    {0, -2197, -760.5, -2936.111839, -2335.6822961, 11348.747384, 7638.3558392, 1477.4867476, 12.838528624, 0,
     3.1713333333, 4.3699647244, 30, 0.71},
    {2, -634.09455679, 409.04389075, -1835.1455193, -1234.7159765, 12017.191221, 7638.3558392, 1477.4867476,
     3.5424462411, 2.2715109649, 3.1713333333, 4.3699647244, 30, 0.71},
    {4, 207.53088641, 857.3077815, -734.17919974, -133.74965687, 12685.635058, 7638.3558392, 1477.4867476, 0,
     4.8185529016, 3.1854050631, 4.3699647244, 29.867473089, 0.71},
    {5, 357.86360802, 810.95972687, -183.69603994, 416.73350293, 13019.856976, 7638.3558392, 1477.4867476, 0,
     4.5522796857, 5.6730138046, 4.3699647244, 16.770627267, 0.71},
    {7, 117.56905122, 177.30361762, 917.27027967, 1517.6998225, 13688.300813, 7638.3558392, 1477.4867476, 0,
     0.97865386821, 5.9574478804, 4.3699647244, 15.969925698, 1.27},
    {8, -273.05822718, -410.00443701, 1467.7534395, 2068.1829823, 14022.522731, 7638.3558392, 1477.4867476,
     2.2769028435, 0, 7.3502708156, 4.3699647244, 12.943740766, 1.27},
    {10, -1595.272784, -2125.5805463, 2568.7197591, 3169.1493019, 14690.966568, 7638.3558392, 1477.4867476,
     12.393906913, 0, 10.135658524, 4.3699647244, 9.38666193, 1.27},
};
/// Stations of its half landing from the crown to the joint; TensionCorte in kgf/cm² against √210·0.53
/// = 7.680.
using EscaleraDescanso = escaleras::EscaleraDescansoPunto;
inline constexpr double EscaleraDescanso::*ColumnasDeDescanso[]{
    &EscaleraDescanso::MomentoTotal, &EscaleraDescanso::MomentoPermanente,
    &EscaleraDescanso::CorteTotal,   &EscaleraDescanso::CortePermanente,
    &EscaleraDescanso::CorteY,       &EscaleraDescanso::Axial,
    &EscaleraDescanso::MomentoY,     &EscaleraDescanso::Torsor,
    &EscaleraDescanso::AsSuperior,   &EscaleraDescanso::AsInferior,
    &EscaleraDescanso::AsY,          &EscaleraDescanso::TensionCorte};
inline constexpr std::array<double, 13> DescansosTrabajados[]{
    {1, -2701.2024363, -2701.2024363, 0, 0, -11224.545421, 0, 0, 0, 11.135902915, 0, 0, 8.4173568963},
    {2, -3177.7866374, -2805.9930791, 874.80837245, 302.81828277, -10842.078311, 2905.1261276, 1888.331983,
     -699.1226352, 13.195552638, 0, 1.0654020239, 8.1305424152},
    {4, -3463.5521584, -2447.7932672, 2390.0209204, 827.31493399, -7936.9521831, 7936.9521831, 5159.018919,
     -1910.0385601, 14.445685532, 0, 2.9268527041, 5.951970141},
    {6, -2821.2616756, -1433.7092261, 3264.8292929, 1130.1332168, -2905.1261276, 10842.078311, 7047.3509019,
     -2609.1611953, 11.651846953, 0, 4.011093977, 2.1785722742},
    {7, -2197, -760.5, 3380, 1170, 0, 11224.545421, 7295.9545238, -2701.2024363, 8.9899271435, 0,
     4.1543665817, 0},
};

/// One whose interval divides nothing: half the development is 122.5 degrees.
inline helices::DatosEscaleraH EscaleraHTrabajada() {
    return {"", "", 0.9, 0.3, 3.2, 2.2, 245, 9000, 9};
}
using EstacionH = helices::EstacionEscaleraH;
inline constexpr double EstacionH::*ColumnasDeHelice[]{
    &EstacionH::N,  &EstacionH::QX,   &EstacionH::QY,   &EstacionH::MT,  &EstacionH::MX,  &EstacionH::MY,
    &EstacionH::TU, &EstacionH::ASXS, &EstacionH::ASXI, &EstacionH::AsY, &EstacionH::AsT, &EstacionH::LON};
/// Degrees from the centre, the spacing of the stirrups, and the columns.
using EstacionTrabajada = std::array<double, 14>;
inline constexpr EstacionTrabajada EstacionesSuperiores[]{
    {-122, 10, -36218.060864, -32212.630244, 14943.672594, -11237.701939, -30538.050868, 59395.936175,
     -3677.8100919, 91.169543654, 54.719543654, 53.893223448, 0.71, 15.336},
    {-104, 24, -37478.582724, -25213.469446, 6822.1743297, -4263.8709663, -18174.438457, 65034.705881,
     1812.8042801, 54.373078145, 17.923078145, 58.688095647, 0.71, 6.39},
    {-86, 12, -36203.385542, -19076.860034, -1967.1258913, -436.06963167, -9346.4771212, 65519.555673,
     3408.702384, 27.10359002, 0, 59.100382885, 0.71, 12.78},
    {-68, 15, -32321.207737, -13827.042381, -10563.870124, 1244.9873391, -3641.2146558, 60335.65236,
     3036.2070725, 9.9535411618, 0, 54.692301837, 0.71, 10.224},
    {-50, 27, -26015.977154, -9401.4515058, -18126.549147, 1609.9264891, -368.00592037, 49651.911583,
     1949.9091772, 0.97664849105, 0, 45.607488251, 0.71, 5.68},
    {-41, 27, -22078.033195, -7455.7938383, -21282.738017, 1497.7021746, 601.61512132, 42482.647976,
     1382.7340495, 0, 1.5998603364, 39.51117566, 0.71, 5.68},
    {-32, 27, -17708.806926, -5656.8413647, -23914.875243, 1266.1330255, 1251.6098265, 34295.372406,
     878.30486816, 0, 3.3474105012, 31.06485488, 0.71, 5.68},
    {-5, 27, -2883.292007, -844.32388738, -28092.595256, 217.05185518, 2009.5004319, 5637.5576072,
     39.614261228, 0, 5.4109156852, 4.6949717178, 0.71, 5.68},
};
inline constexpr EstacionTrabajada EstacionesInferiores[]{
    {0, 27, 0, 0, -28199.904406, 0, 2024.7676384, 0, 0, 0, 5.4527772371, 0, 0.71, 5.68},
    {27, 27, 15125.248237, 4710.5600505, -25126.298807, -1101.6103045, 1504.9486621, -29375.659913,
     -621.36390247, 0, 4.0340255219, 26.183828257, 0.71, 5.68},
    {45, 27, 23886.040038, 8300.866063, -19940.343634, -1565.2225558, 215.40439308, -45804.8829,
     -1612.1327988, 0, 0.57090804221, 42.336205357, 0.71, 5.68},
    {54, 20, 27608.395553, 10319.858397, -16575.487926, -1607.8074493, -925.37003028, -52468.660288,
     -2191.2443636, 2.4677834698, 0, 48.002682728, 0.71, 7.668},
    {72, 13, 33403.705023, 14918.90428, -8714.2497012, -1011.1050659, -4671.8367998, -61979.605725,
     -3197.8199365, 12.897825857, 0, 56.090221364, 0.71, 11.796923077},
    {90, 14, 36713.574175, 20363.398714, 0, 1068.0363688, -11018.224616, -65894.155638, -3262.9755538,
     32.584810596, 0, 59.41892027, 0.71, 10.954285714},
    {99, 24, 37386.480404, 23419.693157, 4411.43696, 2929.9188421, -15378.294602, -65720.70093, -2533.3064064,
     46.051221434, 9.6012214344, 59.27142477, 0.71, 6.39},
    {117, 10, 36808.504283, 30186.678874, 12802.488694, 8923.6611889, -26741.263839, -61423.893365,
     1639.3320712, 79.869582258, 43.419582258, 55.617676841, 0.71, 15.336},
};

}  // namespace trabex::prueba
