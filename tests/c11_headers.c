/* Every public header, compiled as C11. */
#include "ze_adapter_cli.h"
#include "ze_board.h"
#include "ze_chip.h"
#include "ze_emac.h"
#include "ze_gmac.h"
#include "ze_igmp_api.h"
#include "ze_lsw_car.h"
#include "ze_lsw_common.h"
#include "ze_lsw_flow.h"
#include "ze_lsw_phy.h"
#include "ze_lsw_pm.h"
#include "ze_lsw_port.h"
#include "ze_lsw_qos.h"
#include "ze_result.h"
#include "ze_types.h"

int main(void) { return 0; }
