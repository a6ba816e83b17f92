#include "app/Opstarten.h"

#include "app/InstellingenBestand.h"
#include "board/Algemeen.h"
#include "board/Raster.h"
#include "documents/PuzzelMap.h"

void LaadMain()
{
    HerstelBestanden();
    BeginWaarden();
    TekenBord(BoardWidth, BoardHeight);
    LaadInstellingen();
}
