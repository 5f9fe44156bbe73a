-- The realtime feed: row changes of the application's tables, captured as they are written, for
-- morvane-server to hand to the subscribers of /realtime/v1/websocket.
--
-- A trigger writes each change into a queue table and sends a notification that carries only the
-- change's id, so a row of any size travels (a notification holds at most 8000 bytes). The server
-- reads the queue when notified and deletes what it has delivered.
--
-- Nothing is captured while no server reads the queue: on a hosted backend of the same kind,
-- which has its own feed, the queue would otherwise grow for ever. The server switches capture on
-- when it starts and off when it stops.

create table app.realtime_feed (
    singleton boolean primary key default true check (singleton),
    active boolean not null default false
);
insert into app.realtime_feed (singleton, active) values (true, false);

create table app.realtime_changes (
    id bigserial primary key,
    schema_name text not null,
    table_name text not null,
    type text not null check (type in ('INSERT', 'UPDATE', 'DELETE')),
    record jsonb,
    old_record jsonb,
    committed_at timestamptz not null default now()
);

revoke all on app.realtime_feed, app.realtime_changes from public;

create or replace function app.capture_realtime_change() returns trigger
    language plpgsql
    security definer
    set search_path = ''
as $$
declare
    change_id bigint;
begin
    if not coalesce((select f.active from app.realtime_feed f), false) then
        return null;
    end if;
    insert into app.realtime_changes (schema_name, table_name, type, record, old_record)
    values (tg_table_schema, tg_table_name, tg_op,
            case when tg_op <> 'DELETE' then to_jsonb(new) end,
            case when tg_op <> 'INSERT' then to_jsonb(old) end)
    returning id into change_id;
    perform pg_notify('morvane_realtime', change_id::text);
    return null;
end
$$;

revoke all on function app.capture_realtime_change() from public;

-- Which tables the feed carries: one line each.
create or replace function app.enable_realtime(p_table regclass) returns void
    language plpgsql
as $$
begin
    execute format('create or replace trigger realtime_changes after insert or update or delete on %s'
                   ' for each row execute function app.capture_realtime_change()', p_table);
end
$$;

select app.enable_realtime('public.tasks');
select app.enable_realtime('public.time_entries');
select app.enable_realtime('public.projects');
select app.enable_realtime('public.trips');

revoke all on function app.enable_realtime(regclass) from public;
