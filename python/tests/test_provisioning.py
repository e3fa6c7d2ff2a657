"""The README's example: services provisioned end to end through the daemon."""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "examples"))

import provision_services  # noqa: E402


def test_services_are_provisioned_listed_and_removed(onu):
    sfids, fids = provision_services.provision(onu)
    assert sfids == [0, 1, 2]
    assert len(set(fids.values())) == 3
    assert onu.gmac_get_gemport(index=1).reply == {"gemport": 1002, "tcont": 2}
    assert onu.flow_get_service(**provision_services.SERVICES["voice"]).reply["fid"] == fids["voice"]
    simple = onu.flow_diagnose(selector=1).printed.splitlines()
    assert [row.split()[:2] for row in simple if row[:1].isdigit()][:3] == [["0", "0"], ["1", "0"], ["2", "0"]]

    assert onu.flow_del_all().ok
    fresh = onu.flow_diagnose(selector=1).printed
    assert not [row for row in fresh.splitlines() if row[:1].isdigit()]


def test_the_example_runs_as_a_program(daemon, capsys):
    provision_services.main(daemon)
    out = capsys.readouterr().out
    assert out.startswith("sfids [0, 1, 2] fids")
    assert out.endswith("0       1       1001    \r\n1       2       1002    \r\n2       3       1003    \r\n")
