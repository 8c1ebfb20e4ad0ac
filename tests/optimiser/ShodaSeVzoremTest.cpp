// The in-memory engine gives the plans of the engine on SQL, to the last field: the working
// tables, the cuts per sheet and the warning, on seeded random orders (Porovnani.h says what
// they span). CI plans 120 (the golden files hold hundreds more); TRUHLAR_SHODA=N plans N (the bench plans 3,000).
#include "PlanTest.h"
#include "plansql/Porovnani.h"

TEST_F(PlanTest, PametovyPlanSeShodujeSPlanemNadDatabazi)
{
    const int pripadu = qEnvironmentVariableIsSet("TRUHLAR_SHODA") ? qEnvironmentVariableIntValue("TRUHLAR_SHODA") : 120;
    int rozdilnych = 0;
    for (quint32 seme = 1; seme <= quint32(pripadu) && rozdilnych < 5; ++seme) {
        const PlanSql::NahodnyPripad p = PlanSql::vytvorPripad(uloziste(), seme);
        const QString rozdil = PlanSql::porovnej(uloziste(), p);
        if (!rozdil.isEmpty()) {
            ++rozdilnych;
            ADD_FAILURE() << p.popis.toStdString() << "\n" << rozdil.toStdString();
        }
    }
}
