"""Reads thousands of models, on one machine or on a cluster of Dask.

    python3 -m kelifc.batch models/ --out results/ --workers 4 --export csv,glb

There is one task for each model, and each model is read in a process of its own with limits for
time and memory. The folder of the results has a database, the same tables as CSV, and a folder for
each model. A second run reads only the models that have no result yet.
"""
