// SPDX-License-Identifier: MIT
// wxWidgets' grid in the works without a window; built where wxWidgets is found. It needs a screen.
//   medicion_rejilla_wx wxgrid celdas|pega|fichero ROWS
#include "obras.h"
#include "vectores.h"

#include <iostream>
#include <wx/app.h>
#include <wx/frame.h>
#include <wx/grid.h>

namespace {

using namespace Qlt4_Tabla::medida;

wxString de_texto(std::string_view s) { return wxString::FromUTF8(s.data(), s.size()); }

class RejillaWx {
public:
    RejillaWx() : marco_(new wxFrame(nullptr, wxID_ANY, "medida")), rejilla_(new wxGrid(marco_, wxID_ANY)) {
        rejilla_->CreateGrid(0, COLUMNAS);
    }

    ~RejillaWx() { delete marco_; }

    RejillaWx(const RejillaWx&) = delete;
    RejillaWx& operator=(const RejillaWx&) = delete;

    void filas(int n) { rejilla_->AppendRows(n); }

    void pon(int f, int c, const std::string& s) { rejilla_->SetCellValue(f, c, de_texto(s)); }

    [[nodiscard]] std::size_t lee(int f, int c) { return rejilla_->GetCellValue(f, c).length(); }

    void pega(const std::string& bloque) {
        reparte_bloque(bloque, [this](int f, int c, const std::string& campo) {
            if (f == rejilla_->GetNumberRows()) anade();
            char cifras[400];
            rejilla_->SetCellValue(
                f, c, de_texto(es_real(c) ? con_tres_decimales(numero(campo), cifras) : campo));
        });
    }

    [[nodiscard]] std::size_t copia() {
        wxString todo;
        for (int f = 0; f < rejilla_->GetNumberRows(); ++f) {
            for (int c = 0; c < COLUMNAS; ++c) {
                if (c > 0) todo += '\t';
                todo += rejilla_->GetCellValue(f, c);
            }
            todo += "\r\n";
        }
        return todo.length();
    }

    void anade() { rejilla_->AppendRows(1); }

    void inserta(int f) { rejilla_->InsertRows(f, 1); }

    void borra(int f) { rejilla_->DeleteRows(f, 1); }

    void graba(const std::string& ruta) {
        std::string bytes;
        for (int f = 0; f < rejilla_->GetNumberRows(); ++f)
            for (int c = 0; c < COLUMNAS; ++c)
                anade_a_fichero(bytes, rejilla_->GetCellValue(f, c).utf8_string());
        escribe_fichero(ruta, bytes);
    }

    void carga(const std::string& ruta) {
        lee_fichero(ruta, [this](int f, int c, std::string_view s) {
            if (f == rejilla_->GetNumberRows()) anade();
            rejilla_->SetCellValue(f, c, de_texto(s));
        });
    }

    void suma(int a, int b, int r) {
        for (int f = 0; f < rejilla_->GetNumberRows(); ++f) {
            double x = 0;
            double y = 0;
            rejilla_->GetCellValue(f, a).ToCDouble(&x);
            rejilla_->GetCellValue(f, b).ToCDouble(&y);
            rejilla_->SetCellValue(f, r, wxString::FromCDouble(x + y, 3));
        }
    }

private:
    wxFrame* marco_;
    wxGrid* rejilla_;
};

} // namespace

int main(int argc, char** argv) {
    if (argc != 4) return 2;
    int ninguno = 0;
    wxApp::SetInstance(new wxApp);
    if (!wxEntryStart(ninguno, static_cast<char**>(nullptr))) return 1;
    try {
        mide_obras<RejillaWx>(Medidor(), argv[2], std::stoi(argv[3]));
    } catch (const std::exception& e) {
        std::cerr << e.what() << '\n';
        return 1;
    }
    return 0;
}
