-- Calendar events already turned into time: one row per imported occurrence, so that an event is
-- logged once whatever the day, the device or the restart it is picked again on.
--
-- `event_key` is a digest the client makes of the calendar's address, the event's UID and the
-- occurrence (its RECURRENCE-ID, else its start); the server neither sees nor needs the event.
-- The client writes the key first and the time entry after it: a second import of the same
-- occurrence fails here with 23505 before any time is logged. When the entry is removed the key
-- goes with it, so deleting an imported entry lets the event be imported again.

create table if not exists public.calendar_imports (
    id uuid primary key default gen_random_uuid(),
    user_id uuid not null default auth.uid(),
    event_key text not null check (event_key ~ '^[0-9a-f]{64}$'),
    time_entry_id uuid references public.time_entries (id) on delete cascade,
    created_at timestamptz not null default now(),
    unique (user_id, event_key)
);

alter table public.calendar_imports enable row level security;

-- Keys are private to their owner: a teammate logging time on a shared project has calendars of
-- their own. Only the entry link may change after the insert, and only to the owner's own entry.
create policy "own calendar imports are read" on public.calendar_imports for select to authenticated
    using (user_id = auth.uid());
create policy "own calendar imports are written" on public.calendar_imports for insert to authenticated
    with check (user_id = auth.uid());
create policy "own calendar imports are linked" on public.calendar_imports for update to authenticated
    using (user_id = auth.uid())
    with check (user_id = auth.uid()
                and (time_entry_id is null
                     or exists (select 1 from public.time_entries e
                                where e.id = time_entry_id and e.user_id = auth.uid())));
create policy "own calendar imports are released" on public.calendar_imports for delete to authenticated
    using (user_id = auth.uid());

revoke all on public.calendar_imports from public, anon;
grant select, insert, delete on public.calendar_imports to authenticated;
grant update (time_entry_id) on public.calendar_imports to authenticated;
grant all on public.calendar_imports to service_role;
