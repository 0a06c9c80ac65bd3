"""Opening and saving models."""

from __future__ import annotations

import gzip
import io
import os
import signal
import threading
from pathlib import Path

import pytest
from conftest import step_file

import kelifc


def test_path_bytes_and_file_give_the_same_model(house_path: str) -> None:
    content = Path(house_path).read_bytes()
    with open(house_path, "rb") as file:
        models = [
            kelifc.open(house_path),
            kelifc.open(Path(house_path)),
            kelifc.open(content),
            kelifc.open(bytearray(content)),
            kelifc.open(file),
            kelifc.open(io.BytesIO(content)),
        ]
    texts = [[repr(instance) for instance in model] for model in models]
    assert all(text == texts[0] for text in texts)
    assert models[0].release == "2x3" and models[0].schema == "IFC2X3"
    assert len(models[0]) == len(texts[0])


@pytest.mark.parametrize("schema, release", [
    ("IFC151", "1.5.1"), ("IFC20_LONGFORM", "2.0"), ("IFC2X_FINAL", "2x"),
    ("IFC2X2_FINAL", "2x2"), ("IFC2X3", "2x3")])
def test_all_releases_open(schema: str, release: str) -> None:
    model = kelifc.open(step_file("#1=IFCCARTESIANPOINT((1.,2.,3.));", schema=schema))
    assert model.release == release
    assert model[1].Coordinates == (1.0, 2.0, 3.0)


def test_a_missing_file_is_named() -> None:
    with pytest.raises(kelifc.OpenError) as caught:
        kelifc.open("/no/such/model.ifc")
    assert caught.value.path == "/no/such/model.ifc"
    assert caught.value.reason == "No such file or directory"
    assert str(caught.value) == "/no/such/model.ifc: No such file or directory"


def test_what_is_no_model_is_refused() -> None:
    with pytest.raises(kelifc.OpenError, match="not a STEP file"):
        kelifc.open(b"hello")
    with pytest.raises(kelifc.UnsupportedReleaseError, match="IFC4X3"):
        kelifc.open(step_file(schema="IFC4X3"))
    with pytest.raises(kelifc.OpenError, match="unknown schema"):
        kelifc.open(step_file(schema="NOTHING"))
    with pytest.raises(TypeError, match="binary"):
        kelifc.open(io.StringIO("text"))  # type: ignore[arg-type]
    with pytest.raises(ValueError, match="dialect"):
        kelifc.open(step_file(), dialect="latin")


def test_errors_name_the_place_in_the_file() -> None:
    with pytest.raises(kelifc.OpenError) as caught:
        kelifc.open(b"hello;\nworld;\n")
    assert caught.value.place == (1, 1)
    with pytest.raises(kelifc.OpenError) as caught:
        kelifc.open(step_file(schema="NOTHING"))
    assert caught.value.place == (5, 1)
    assert str(caught.value) == "<bytes>:5:1: unknown schema 'NOTHING'"
    with pytest.raises(kelifc.UnsupportedReleaseError) as caught:
        kelifc.open(step_file(schema="IFC4"))
    assert caught.value.place == (5, 1)
    with pytest.raises(kelifc.OpenError) as caught:
        kelifc.open("/no/such/model.ifc")
    assert caught.value.place is None


def test_limits_end_a_load() -> None:
    content = step_file(*(f"#{n}=IFCCARTESIANPOINT((1.,2.));" for n in range(1, 50)))
    with pytest.raises(kelifc.LimitError) as caught:
        kelifc.open(content, limits=kelifc.Limits(max_instances=10))
    assert caught.value.place == (18, 1)  # of the eleventh instance
    assert len(kelifc.open(content, limits=kelifc.Limits(max_instances=100))) == 49


def test_packed_models_open(house_path: str, house: kelifc.Model, tmp_path: Path) -> None:
    packed = tmp_path / "house.ifc.gz"
    packed.write_bytes(gzip.compress(Path(house_path).read_bytes()))
    try:
        assert len(kelifc.open(packed)) == len(house)
        assert len(kelifc.open(packed.read_bytes())) == len(house)
    except kelifc.NotBuiltError as error:
        assert "archive" in error.reason


def test_progress_reaches_the_end_and_can_cancel(house_path: str) -> None:
    calls: list[tuple[int, int]] = []
    kelifc.open(house_path, progress=lambda done, total: calls.append((done, total)))
    assert calls and calls[-1][0] == calls[-1][1]
    with pytest.raises(kelifc.CancelledError) as caught:
        kelifc.open(house_path, progress=lambda done, total: False)
    assert caught.value.path == house_path and caught.value.place is None


def test_an_exception_of_the_progress_function_is_raised(house_path: str) -> None:
    def fail(done: int, total: int) -> None:
        raise ZeroDivisionError("progress")

    with pytest.raises(ZeroDivisionError, match="progress"):
        kelifc.open(house_path, progress=fail)


def test_an_interrupt_ends_a_load(house_path: str) -> None:
    def interrupt(done: int, total: int) -> None:
        os.kill(os.getpid(), signal.SIGINT)
        for _ in range(1000):  # the interpreter handles the signal between two instructions
            pass

    with pytest.raises(KeyboardInterrupt):
        kelifc.open(house_path, progress=interrupt)


def test_other_threads_run_during_a_load() -> None:
    ran: list[int] = []

    def see(done: int, total: int) -> None:
        thread = threading.Thread(target=ran.append, args=(1,))
        thread.start()
        thread.join()

    kelifc.open(step_file("#1=IFCWALL($,$,$,$,$,$,$,$);"), progress=see)
    assert ran


def test_the_report_counts_and_names_places() -> None:
    model = kelifc.open(step_file(
        "#1=IFCDIRECTION((0.,0.,1.));", "#1=IFCDIRECTION((0.,1.,0.));", "#3=IFCWHAT(1);",
        "#4=IFCLOCALPLACEMENT(#99,#1);"))
    report = model.report
    assert report.statements == 4 and report.numbers == 3 and report.raw == 1
    assert report.raw_by_entity == {"IFCWHAT": 1}
    assert [finding.what for finding in report.findings] == ["number used twice"]
    assert not report.is_checked
    checked = model.check()
    assert checked.is_checked
    assert "reference to a number that no statement has" in [f.what for f in checked.findings]
    assert "Numbered statements" in str(checked) and checked.to_json().startswith("{")


def test_a_model_is_saved_and_read_again(house: kelifc.Model, tmp_path: Path) -> None:
    target = tmp_path / "saved.ifc"
    house.save(target)
    again = kelifc.open(target)
    for name in ("IfcWall", "IfcColumn", "IfcSlab", "IfcLocalPlacement"):
        assert [repr(i) for i in again.by_type(name)] == [repr(i) for i in house.by_type(name)]
    house.write(str(target))
    with pytest.raises(kelifc.SaveError) as caught:
        house.save(tmp_path / "missing" / "saved.ifc")
    assert caught.value.path.endswith("saved.ifc") and caught.value.reason


def test_a_faithful_save_keeps_the_bytes_of_what_did_not_change(tmp_path: Path) -> None:
    content = step_file("#1=IFCDIRECTION( (0., 0., 1.) );  /* up */", "#2=IFCWALL($,$,'a',$,$,$,$,$);")
    source = tmp_path / "source.ifc"
    source.write_bytes(content)
    model = kelifc.open(source)
    model[2].Name = "b"
    model.save(tmp_path / "saved.ifc", faithful=True)
    saved = (tmp_path / "saved.ifc").read_bytes()
    assert b"#1=IFCDIRECTION( (0., 0., 1.) );  /* up */" in saved
    assert b"'b'" in saved
    with pytest.raises(kelifc.SaveError):
        kelifc.open(source, dialect="classic").save(tmp_path / "no.ifc", faithful=True)
