/// \file
/// A 2x2 matrix.
#ifndef VEKMath2x2Matrix_H
#define VEKMath2x2Matrix_H

/// Four coefficients, set by the constructor.
class VEKMath2x2Matrix {
public:
    /// The identity.
    VEKMath2x2Matrix() : VEKMath2x2Matrix(1.0, 0.0, 0.0, 1.0) {}
    /// Row by row.
    VEKMath2x2Matrix(double i11, double i12, double i21, double i22)
        : _coefficients{{i11, i12}, {i21, i22}} {}

    /// Rows and columns are numbered from 1; 0.0 outside the matrix.
    double GetCoef(int iRow, int iColumn) const {
        const bool inside = iRow >= 1 && iRow <= 2 && iColumn >= 1 && iColumn <= 2;
        return inside ? _coefficients[iRow - 1][iColumn - 1] : 0.0;
    }

    /// Exact: no tolerance.
    bool operator==(const VEKMath2x2Matrix& iOther) const {
        return _coefficients[0][0] == iOther._coefficients[0][0] &&
               _coefficients[0][1] == iOther._coefficients[0][1] &&
               _coefficients[1][0] == iOther._coefficients[1][0] &&
               _coefficients[1][1] == iOther._coefficients[1][1];
    }
    bool operator!=(const VEKMath2x2Matrix& iOther) const { return !(*this == iOther); }

private:
    double _coefficients[2][2];
};

#endif
